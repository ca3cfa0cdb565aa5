#include "shell/coverLoader.h"

#include "store/themeResource.h"

#include <QImage>
#include <QImageReader>

#include <algorithm>
#include <utility>

namespace zdt {

namespace {

/// KB of the covers that are kept: 250 at a device pixel ratio of 1.
constexpr int cacheKilobytes = 64 * 1024;
constexpr std::size_t threadCount = 2;
/// More than a screen shows; what was asked for before these has been scrolled away.
constexpr std::size_t longestQueue = 64;
/// Pixels of the largest picture that is decoded, four times the largest preview.
constexpr qint64 maximumPixels = 16LL << 20;

QImage readCover(const std::string& path, QSize wanted) {
    QImageReader reader(QString::fromStdString(path));
    const QSize size = reader.size();
    if (!size.isValid() || qint64(size.width()) * size.height() > maximumPixels)
        return {};
    const QSize scaled = size.scaled(wanted, Qt::KeepAspectRatioByExpanding);
    reader.setScaledSize(scaled);
    const QPoint corner((scaled.width() - wanted.width()) / 2, 0);
    return reader.read().copy(QRect(corner, wanted));
}

} // namespace

CoverLoader::CoverLoader(std::string root, QSize cover, QObject* parent)
    : QObject(parent)
    , _root(std::move(root))
    , _size(cover)
    , _entries(cacheKilobytes) {
    _threads.setMaxThreadCount(threadCount);
}

CoverLoader::~CoverLoader() {
    _waiting.clear();
    _threads.clear();
    _threads.waitForDone();
}

const CoverLoader::Entry* CoverLoader::entry(const ThemeCard& card) {
    const QString key = QString("%1/%2").arg(QString::fromStdString(card.name)).arg(card.changedAt);
    if (const Entry* known = _entries.object(key))
        return known;
    std::erase_if(_waiting, [&](const Request& request) { return request.key == key; });
    if (std::find(_running.begin(), _running.end(), key) != _running.end())
        return nullptr;
    _waiting.push_back({key, card.name, card.cover});
    if (_waiting.size() > longestQueue)
        _waiting.erase(_waiting.begin());
    startNext();
    return nullptr;
}

void CoverLoader::startNext() {
    while (_running.size() < threadCount && !_waiting.empty()) {
        const Request request = _waiting.back();
        _waiting.pop_back();
        _running.push_back(request.key);
        _threads.start([this, request] {
            const QImage cover = readCover(request.cover, _size);
            const std::uint64_t bytes = ThemeResource::themeSize(request.name, _root);
            QMetaObject::invokeMethod(
                this, [this, request, cover, bytes] { take(request, cover, bytes); }, Qt::QueuedConnection);
        });
    }
}

void CoverLoader::take(const Request& request, const QImage& cover, std::uint64_t bytes) {
    std::erase(_running, request.key);
    const int cost = 1 + static_cast<int>(cover.sizeInBytes() / 1024);
    _entries.insert(request.key, new Entry{QPixmap::fromImage(cover), bytes}, cost);
    startNext();
    emit loaded(QString::fromStdString(request.name));
}

} // namespace zdt
