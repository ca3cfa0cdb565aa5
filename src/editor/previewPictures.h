#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QThreadPool>

#include <atomic>
#include <cstdint>
#include <string>

namespace zdt {

/// Reads the pictures of the list small, on threads of its own.
class PreviewPictures : public QObject {
    Q_OBJECT

public:
    explicit PreviewPictures(QObject* parent = nullptr);
    ~PreviewPictures() override;

    struct Request {
        QString name;
        std::string file;
        std::string templateFile; ///< What the picture is compared with; empty for nothing.
        QSize bounds;             ///< Device pixels.
    };

    /// Drops what was asked for and isn't read yet.
    void restart();
    void read(const Request& request);
    /// Adds up what a theme's files take, of a store root.
    void measure(const std::string& theme, const std::string& root);

signals:
    /// Null for a picture that can't be read. `isOwn` tells that it isn't the template's.
    void ready(const QString& name, const QImage& picture, bool isOwn);
    void measured(quint64 bytes);

    // Of the threads alone.
    void decoded(unsigned round, const QString& name, const QImage& picture, bool isOwn);
    void added(unsigned round, quint64 bytes);

private:
    QThreadPool _pool;
    std::atomic<unsigned> _round = 0;
};

} // namespace zdt
