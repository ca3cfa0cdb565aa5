#pragma once

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QSize>
#include <QStringList>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <optional>
#include <string>
#include <vector>

namespace zdt {

/// Small pictures of files, made by workers and kept for the state that a file is in. What was asked for last is made
/// first, and nothing before the interface has had a moment to show what it has.
class Thumbnails : public QObject {
    Q_OBJECT

public:
    /// What a list of small rows keeps, in KB.
    static constexpr int rowsKilobytes = 16 * 1024;

    /// @param kilobytes how much is kept of what was made
    explicit Thumbnails(int kilobytes = rowsKilobytes, QObject* parent = nullptr);
    ~Thumbnails() override;

    /// The picture of a file, no larger than `box` (device pixels) and never enlarged. Null for one that can't be read;
    /// nothing while it is being made, and then `ready` follows.
    [[nodiscard]] std::optional<QImage> find(const std::string& file, const QSize& box);
    /// The same with a null picture while it is being made.
    [[nodiscard]] QImage picture(const std::string& file, const QSize& box) {
        return find(file, box).value_or(QImage());
    }
    /// Drops what was asked for and isn't begun.
    void dropWaiting();

signals:
    /// The pictures of these files were made. At most fifty times a second.
    void ready(const QStringList& files);

private:
    struct Request {
        QString key;
        std::string file;
        QSize box;
    };

    void startAsked();
    void make(const Request& request);

    QCache<QString, QImage> _pictures;
    std::vector<Request> _asked; ///< And not begun.
    QSet<QString> _waiting;      ///< The keys of all that aren't made.
    QTimer _starting;
    QTimer _telling;
    QStringList _made; ///< Files of which nobody was told yet.
    int _priority = 0;
    std::atomic<bool> _ending = false;
    QThreadPool _workers;
};

} // namespace zdt
