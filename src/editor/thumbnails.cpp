#include "editor/thumbnails.h"

#include "editor/fileChanges.h"
#include "support/plainFile.h"

#include <QFile>
#include <QImageReader>

namespace zdt {

namespace {

constexpr int cachedKilobytes = 16 * 1024;
constexpr int tellingInterval = 20;
constexpr qint64 mostPixels = 64LL * 1024 * 1024;

/// Reads a picture small; null for what is none, or claims more than a phone could show.
QImage readSmall(const std::string& path, const QSize& box) {
    const PlainFile plain(path);
    QFile device;
    if (!plain.isOpen() || !device.open(plain.descriptor(), QIODevice::ReadOnly))
        return {};
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64{size.width()} * size.height() > mostPixels)
        return {};
    const bool isLarger = size.width() > box.width() || size.height() > box.height();
    const QSize wanted = isLarger ? size.scaled(box, Qt::KeepAspectRatio).expandedTo({1, 1}) : size;
    if (!isLarger)
        return reader.read();
    // Twice the size and then smoothly down: a decoder that scales by itself does it roughly.
    reader.setScaledSize(QSize(wanted * 2).boundedTo(size));
    return reader.read().scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

Thumbnails::Thumbnails(QObject* parent)
    : QObject(parent)
    , _pictures(cachedKilobytes) {
    _workers.setMaxThreadCount(2);
    _telling.setSingleShot(true);
    _telling.setInterval(tellingInterval);
    connect(&_telling, &QTimer::timeout, this, &Thumbnails::ready);
}

Thumbnails::~Thumbnails() {
    _ending = true;
    _workers.clear();
    _workers.waitForDone();
}

QImage Thumbnails::picture(const std::string& file, const QSize& box) {
    const std::string stamp = fileStamp(file);
    if (stamp.empty())
        return {};
    const QString key = QString("%1x%2 ").arg(box.width()).arg(box.height()) + QString::fromStdString(stamp);
    if (const QImage* known = _pictures.object(key))
        return *known;
    if (!_waiting.contains(key)) {
        _waiting.insert(key);
        _workers.start([this, key, file, box] { make(key, file, box); });
    }
    return {};
}

void Thumbnails::dropWaiting() {
    _workers.clear();
    _waiting.clear();
}

void Thumbnails::make(const QString& key, const std::string& file, const QSize& box) {
    if (_ending)
        return;
    const QImage made = readSmall(file, box);
    QMetaObject::invokeMethod(
        this,
        [this, key, made] {
            _waiting.remove(key);
            _pictures.insert(key, new QImage(made), static_cast<int>(1 + made.sizeInBytes() / 1024));
            if (!_telling.isActive())
                _telling.start();
        },
        Qt::QueuedConnection);
}

} // namespace zdt
