#include "editor/previewUpload.h"

#include "editor/previewRender.h"
#include "model/fileResNode.h"
#include "model/pictureSize.h"
#include "packaging/pictureCheck.h"
#include "packaging/pictureConversion.h"
#include "packaging/uploadMessages.h"
#include "support/files.h"

#include <optional>
#include <string_view>

namespace zdt {

namespace {

constexpr std::string_view kWarn_upload_correct_unlock_pic = "kWarn_upload_correct_unlock_pic";
constexpr std::string_view kWarn_upload_correct_unlock_pic_nine = "kWarn_upload_correct_unlock_pic_nine";
constexpr std::string_view KWarn_upload_JPGPNG = "KWarn_upload_JPGPNG";
/// The check rounds a size down to whole KB, so that a little more than the limit passes.
constexpr std::uint64_t maxUploadBytes = (previewLimit + 1) * 1024;

PreparedPreview refused(std::string_view message) {
    return {std::string(message), {}};
}

bool isJpeg(const std::string& file) {
    return jpegSize(file) != PictureSize{};
}

/// Neither cut short nor something else under a picture's name.
bool isSound(const std::string& file) {
    if (!isJpeg(file))
        return pngSize(file) != PictureSize{};
    const std::optional<std::string> bytes = readFile(file, maxUploadBytes);
    return bytes && isWholeJpeg(*bytes);
}

QSize sizeOf(const SizeRange& range) {
    return {static_cast<int>(range.minWidth), static_cast<int>(range.minHeight)};
}

PreparedPreview converted(const std::string& file, const QSize& size, const std::string& folder,
                          const std::string& name) {
    if (folder.empty())
        return refused("kProblem_17");
    QImage picture = loadPicture(file);
    if (picture.isNull())
        return refused(KWarn_upload_JPGPNG);
    if (picture.size() != size)
        picture = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const std::string bytes = encodeWithin(picture, previewMaxBytes);
    if (bytes.empty())
        return refused(kWarn_upload_lessthenone300_pic);
    return writeFile(folder + name, bytes) ? PreparedPreview{{}, folder + name} : refused("kProblem_3");
}

} // namespace

QSize uploadSize(bool tall) {
    return {static_cast<int>(screenWidth), static_cast<int>(tall ? tallScreenHeight : screenHeight)};
}

PreparedPreview preparePreview(const std::string& file, const PreviewTarget& target, const std::string& folder) {
    const PictureCheck check = CheckPictureUpload(file, false, previewLimit, kWarn_upload_lessthenone300_pic);
    if (!check.passes) // A file that has gone meanwhile has no message of its own.
        return refused(check.message.empty() ? KWarn_upload_JPGPNG : check.message);
    const QSize size(check.width, check.height);
    if (size.isEmpty() || !isSound(file))
        return refused(KWarn_upload_JPGPNG);
    if (size != uploadSize(target.tall))
        return refused(target.tall ? kWarn_upload_correct_unlock_pic_nine : kWarn_upload_correct_unlock_pic);
    const QSize wanted = sizeOf(previewSize(target.name, target.tall));
    if (isJpeg(file) && size == wanted && fileSize(file) <= previewMaxBytes && extension(file) == ".jpg")
        return {{}, file};
    return converted(file, wanted, folder, target.name);
}

} // namespace zdt
