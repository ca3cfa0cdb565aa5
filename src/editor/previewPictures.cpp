#include "editor/previewPictures.h"

#include "model/fileResNode.h"
#include "packaging/pictureConversion.h"
#include "store/themeResource.h"
#include "support/files.h"

namespace zdt {

PreviewPictures::PreviewPictures(QObject* parent)
    : QObject(parent) {
    _pool.setMaxThreadCount(2);
}

PreviewPictures::~PreviewPictures() {
    restart();
    _pool.waitForDone();
}

void PreviewPictures::restart() {
    ++_round;
    _pool.clear();
}

void PreviewPictures::read(const Request& request) {
    _pool.start([this, request, round = _round.load()] {
        if (round != _round)
            return;
        const QImage picture = loadThumbnail(request.file, request.bounds);
        const bool isOwn = !request.templateFile.empty() && !areSameFiles(request.file, request.templateFile);
        QMetaObject::invokeMethod(
            this,
            [this, round, name = request.name, picture, isOwn] {
                if (round == _round)
                    emit ready(name, picture, isOwn);
            },
            Qt::QueuedConnection);
    });
}

void PreviewPictures::measure(const std::string& theme, const std::string& root) {
    _pool.start([this, theme, root, round = _round.load()] {
        const std::uint64_t bytes = ThemeResource::themeSize(theme, root);
        QMetaObject::invokeMethod(
            this,
            [this, round, bytes] {
                if (round == _round)
                    emit measured(bytes);
            },
            Qt::QueuedConnection);
    });
}

bool areSameFiles(const std::string& one, const std::string& other) {
    if (fileSize(one) != fileSize(other))
        return false;
    const std::optional<std::string> bytes = readFile(one, previewMaxBytes);
    return bytes && bytes == readFile(other, previewMaxBytes);
}

} // namespace zdt
