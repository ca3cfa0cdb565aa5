#include "editor/previewRender.h"

#include "model/fileResNode.h"
#include "packaging/pictureConversion.h"
#include "support/files.h"

#include <QRect>

namespace zdt {

namespace {

/// The source of the drawings; null unless it is whole.
QImage wholePicture(const std::string& path) {
    const std::optional<std::string> bytes = readFile(path, previewMaxBytes);
    return bytes && isWholeJpeg(*bytes) ? loadPicture(path) : QImage();
}

RenderedPicture render(const QImage& picture, const RenderTarget& target, const std::string& folder) {
    const std::string bytes = encodeWithin(covering(picture, target.size), previewMaxBytes);
    if (bytes.empty())
        return {target.name, false, {}};
    if (!target.current.empty() && readFile(target.current, previewMaxBytes) == bytes)
        return {target.name, true, {}};
    const std::string file = folder + target.name;
    return {target.name, !folder.empty() && writeFile(file, bytes), file};
}

} // namespace

QImage covering(const QImage& picture, const QSize& size) {
    if (picture.isNull() || size.isEmpty() || picture.size() == size)
        return picture;
    const QSize part = size.scaled(picture.size(), Qt::KeepAspectRatio).expandedTo({1, 1});
    QRect middle(QPoint(), part);
    middle.moveCenter(picture.rect().center());
    // An upright one keeps its clock and status bar, and loses what stands at its foot.
    if (size.height() > size.width())
        middle.moveTop(0);
    const QImage cut = picture.copy(middle);
    return part == size ? cut : cut.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

std::string encodeWithin(const QImage& image, std::uint64_t maxBytes) {
    for (const int quality : previewQualities) {
        std::string bytes = jpegBytes(image, quality);
        if (bytes.size() <= maxBytes)
            return bytes;
    }
    return {};
}

std::vector<RenderedPicture> renderPreviews(const std::string& source, const std::vector<RenderTarget>& targets,
                                            const std::string& folder) {
    const QImage picture = wholePicture(source);
    std::vector<RenderedPicture> rendered;
    for (const RenderTarget& target : targets)
        rendered.push_back(render(picture, target, folder));
    return rendered;
}

} // namespace zdt
