#pragma once

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QSize>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <string>

namespace zdt {

/// Small pictures of files, made by workers and kept for the state that a file is in, at most 16 MiB of them.
class Thumbnails : public QObject {
    Q_OBJECT

public:
    explicit Thumbnails(QObject* parent = nullptr);
    ~Thumbnails() override;

    /// The picture of a file, no larger than `box` (device pixels) and never enlarged. Null for one that can't be read,
    /// and for one that is being made: `ready` follows then.
    [[nodiscard]] QImage picture(const std::string& file, const QSize& box);
    /// Drops what was asked for and isn't begun.
    void dropWaiting();

signals:
    /// Some were made. At most fifty times a second.
    void ready();

private:
    void make(const QString& key, const std::string& file, const QSize& box);

    QCache<QString, QImage> _pictures;
    QSet<QString> _waiting;
    QTimer _telling;
    std::atomic<bool> _ending = false;
    QThreadPool _workers;
};

} // namespace zdt
