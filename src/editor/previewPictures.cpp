#include "editor/previewPictures.h"

#include "packaging/pictureConversion.h"
#include "store/themeResource.h"
#include "support/fileComparison.h"

namespace zdt {

PreviewPictures::PreviewPictures(QObject* parent)
    : QObject(parent) {
    _pool.setMaxThreadCount(2);
    // Sent by the pool's threads, heard on the interface thread.
    connect(this, &PreviewPictures::decoded, this,
            [this](unsigned round, const QString& name, const QImage& picture, bool isOwn) {
                if (round == _round)
                    emit ready(name, picture, isOwn);
            });
    connect(this, &PreviewPictures::added, this, [this](unsigned round, quint64 bytes) {
        if (round == _round)
            emit measured(bytes);
    });
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
        const bool isOwn = !request.templateFile.empty() && !sameFiles(request.file, request.templateFile);
        emit decoded(round, request.name, picture, isOwn);
    });
}

void PreviewPictures::measure(const std::string& theme, const std::string& root) {
    _pool.start(
        [this, theme, root, round = _round.load()] { emit added(round, ThemeResource::themeSize(theme, root)); });
}

} // namespace zdt
