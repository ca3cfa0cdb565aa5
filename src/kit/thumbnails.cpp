#include "kit/thumbnails.h"

#include "packaging/pictureConversion.h"
#include "support/fileComparison.h"

#include <utility>

namespace zdt {

namespace {

/// Milliseconds: the first picture of a page takes about as long.
constexpr int startingPause = 30;
constexpr int tellingInterval = 20;
} // namespace

Thumbnails::Thumbnails(int kilobytes, QObject* parent)
    : QObject(parent)
    , _pictures(kilobytes) {
    _workers.setMaxThreadCount(2);
    _telling.setSingleShot(true);
    _telling.setInterval(tellingInterval);
    connect(&_telling, &QTimer::timeout, this, [this] { emit ready(std::exchange(_made, {})); });
    _starting.setSingleShot(true);
    _starting.setInterval(startingPause);
    connect(&_starting, &QTimer::timeout, this, &Thumbnails::startAsked);
}

Thumbnails::~Thumbnails() {
    _ending = true;
    _workers.clear();
    _workers.waitForDone();
}

std::optional<QImage> Thumbnails::find(const std::string& file, const QSize& box) {
    const std::string stamp = fileStamp(file);
    if (stamp.empty())
        return QImage();
    const QString key = QString("%1x%2 ").arg(box.width()).arg(box.height()) + QString::fromStdString(stamp);
    if (const QImage* known = _pictures.object(key))
        return *known;
    if (!_waiting.contains(key)) {
        _waiting.insert(key);
        _asked.push_back({key, file, box});
        if (!_starting.isActive())
            _starting.start();
    }
    return {};
}

void Thumbnails::startAsked() {
    // What was asked for last is what is seen now.
    for (const Request& request : std::exchange(_asked, {}))
        _workers.start([this, request] { make(request); }, ++_priority);
}

void Thumbnails::dropWaiting() {
    _workers.clear();
    _asked.clear();
    _waiting.clear();
}

void Thumbnails::make(const Request& request) {
    if (_ending)
        return;
    const QImage made = loadThumbnail(request.file, request.box);
    QMetaObject::invokeMethod(
        this,
        [this, key = request.key, file = request.file, made] {
            _waiting.remove(key);
            _made.append(QString::fromStdString(file));
            _pictures.insert(key, new QImage(made), static_cast<int>(1 + made.sizeInBytes() / 1024));
            if (!_telling.isActive())
                _telling.start();
        },
        Qt::QueuedConnection);
}

} // namespace zdt
