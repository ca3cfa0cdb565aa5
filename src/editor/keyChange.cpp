#include "editor/keyChange.h"

#include "editor/keyDefaults.h"
#include "editor/previewRender.h"
#include "lockscreen/unlockConfigNode.h"
#include "model/resNode.h"
#include "model/returnCode.h"
#include "modules/themeNode.h"
#include "packaging/pictureCheck.h"
#include "packaging/pictureConversion.h"
#include "packaging/uploadMessages.h"
#include "packaging/videoLimits.h"
#include "store/themeResource.h"
#include "support/atomicFile.h"
#include "support/files.h"
#include "support/text.h"

#include <QImage>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace zdt {

namespace {

constexpr std::uint64_t bytesPerKilobyte = 1024;
const KeyPath lockVideo{"unlock", "video", "image_set"};
constexpr const char* lockFolder = "unlock/config/dynamicPath";

/// Those that a text alone makes: a custom one needs its package.
constexpr std::array lockKinds{unlockType::slide, unlockType::magazine, unlockType::amazing, unlockType::video};

bool isLockKind(const std::string& value) {
    return std::find(lockKinds.begin(), lockKinds.end(), value) != lockKinds.end();
}

bool isSetOrAbsent(int code) {
    return code == returnCode::success || code == returnCode::notFound;
}

int setPlace(ThemeResource& theme, const KeyPlace& place, const std::string& value) {
    // The store keeps one video, whatever its name.
    if (place.block == lockVideo)
        return theme.setValue(place.block, place.name, value);
    return theme.setValueNth(place.path(), place.number, value);
}

int validatePlace(const ThemeResource& theme, const KeyPlace& place, const std::string& value) {
    ResNode* leaf = theme.findNthNode(place.path(), place.number);
    return leaf ? leaf->validate(value) : returnCode::notFound;
}

/// The first refusal of a value by a place; nothing is set.
int refusalOf(const ThemeResource& theme, const KeyRow& row, const std::string& value) {
    for (const KeyPlace& place : row.places) {
        if (const int code = validatePlace(theme, place, value); !isSetOrAbsent(code))
            return code;
    }
    return returnCode::success;
}

/// What a row's places hold, to go back to. Files are copied, for they are overwritten themselves.
class OldValues {
public:
    OldValues(const ThemeResource& theme, const KeyRow& row)
        : _areFiles(isFile(row.kind)) {
        if (_areFiles)
            _folder.emplace();
        for (const KeyPlace& place : row.places) {
            Old old{theme.getValueNth(place.path(), place.number), theme.tree().path() + place.file, {}};
            // A file that doesn't fit its place is no value, but it is there all the same.
            if (_areFiles && isPlainFile(old.file))
                keep(old);
            _old.push_back(old);
        }
    }

    /// Whether there is a way back for every place.
    [[nodiscard]] bool isWhole() const { return _isWhole; }

    /// Puts the first `count` places back. What can't be written now still can't be.
    void restore(ThemeResource& theme, const KeyRow& row, std::size_t count) const {
        for (std::size_t index = 0; index < count; ++index) {
            const KeyPlace& place = row.places[index];
            const Old& old = _old[index];
            if (!_areFiles || !old.value.empty()) {
                static_cast<void>(setPlace(theme, place, _areFiles ? old.copy : old.value));
                continue;
            }
            const bool isCleared = theme.clearFileNth(place.path(), place.number) == returnCode::success;
            if (isCleared && !old.copy.empty())
                static_cast<void>(copyFile(old.copy, old.file));
        }
    }

private:
    struct Old {
        std::string value;
        std::string file;
        std::string copy; ///< Empty if there was no file.
    };

    void keep(Old& old) {
        const std::string name = std::to_string(_old.size()) + extension(old.file);
        old.copy = _folder->filePath(QString::fromStdString(name)).toStdString();
        _isWhole = _isWhole && _folder->isValid() && copyFile(old.file, old.copy);
    }

    bool _areFiles;
    bool _isWhole = true;
    std::optional<QTemporaryDir> _folder;
    std::vector<Old> _old;
};

/// `set` for each place; nothing where there would be no way back. A failure puts those before it back; one alone is
/// left as it was by the store.
template <typename Set>
int setAll(ThemeResource& theme, const KeyRow& row, Set set) {
    std::optional<OldValues> before;
    if (row.hasCopies())
        before.emplace(theme, row);
    if (before && !before->isWhole())
        return returnCode::copyFailed;
    for (std::size_t index = 0; index < row.places.size(); ++index) {
        if (const int code = set(row.places[index]); !isSetOrAbsent(code)) {
            if (before)
                before->restore(theme, row, index);
            return code;
        }
    }
    return returnCode::success;
}

bool applyAll(ThemeResource& theme, const KeyRow& row) {
    bool written = true;
    for (const KeyPlace& place : row.places)
        written = theme.applyNode(place.block) && written;
    return written;
}

/// Whether a text can be written, and leads nowhere outside the theme.
bool isSafe(const KeyRow& row, const std::string& value) {
    if (row.key == lockFolder)
        return isXmlText(value) && !value.empty() && value.find_first_of("/\\") == std::string::npos &&
               !value.starts_with('.');
    return isXmlText(value);
}

int changeText(ThemeResource& theme, const KeyRow& row, const std::string& value) {
    if (row.key == lockStyleKey)
        return isLockKind(value) ? theme.setLockScreenType(value) : returnCode::notAllowed;
    if (!isSafe(row, value))
        return returnCode::notAllowed;
    if (const int code = refusalOf(theme, row, value))
        return code;
    const OldValues before(theme, row);
    for (const KeyPlace& place : row.places)
        static_cast<void>(setPlace(theme, place, value));
    if (applyAll(theme, row))
        return returnCode::success;
    before.restore(theme, row, row.places.size());
    static_cast<void>(applyAll(theme, row));
    return returnCode::copyFailed;
}

bool isNinePatch(const std::string& name) {
    return PictureSuffixOf(name) == ".9.png";
}

std::string_view messageOfLimit(const KeyRow& row) {
    return row.maxBytes == previewMaxBytes ? kWarn_upload_lessthenone300_pic : kWarn_upload_lessthenoneM_pic;
}

bool fits(const KeyRow& row, const PictureCheck& picture) {
    return row.sizes.empty() || std::any_of(row.sizes.begin(), row.sizes.end(), [&](const SizeRange& size) {
               return size.contains(static_cast<std::uint32_t>(picture.width),
                                    static_cast<std::uint32_t>(picture.height));
           });
}

/// Sets a JPEG made of a picture, of the best quality that keeps it within a number of bytes.
FileRefusal replaceByJpeg(ThemeResource& theme, const KeyRow& row, const std::string& file, std::uint64_t maxBytes) {
    const QImage picture = loadPicture(file);
    if (picture.isNull())
        return {returnCode::unreadablePicture, {}};
    const std::string bytes = encodeWithin(picture, maxBytes);
    if (bytes.empty())
        return {returnCode::wrongByteSize, {}};
    const QTemporaryDir folder;
    const std::string jpeg = folder.filePath("picture.jpg").toStdString();
    if (!folder.isValid() || !writeFile(jpeg, bytes))
        return {returnCode::copyFailed, {}};
    return {changeKey(theme, row, jpeg), {}};
}

FileRefusal replacePicture(ThemeResource& theme, const KeyRow& row, const std::string& file) {
    constexpr const char* plainWanted = "kWarn_replace_right_format_picture";
    const std::uint64_t limit = row.maxBytes > 0 ? row.maxBytes / bytesPerKilobyte : pictureLimit;
    const PictureCheck check = CheckPictureUpload(file, false, limit, messageOfLimit(row));
    if (!check.passes)
        return {check.message.empty() ? returnCode::missingFile : 0, check.message};
    if (isNinePatch(file) && !isNinePatch(row.name()))
        return {0, plainWanted};
    // Its head may be sound, and the rest cut.
    if (check.width > 0 && loadPicture(file).isNull())
        return {0, "kPicture_damaged"};
    if (row.kinds != fileKind::jpeg || fileKindOf(file) != fileKind::png)
        return {changeKey(theme, row, file), {}};
    if (!fits(row, check))
        return {returnCode::wrongDimensions, {}};
    return replaceByJpeg(theme, row, file, limit * bytesPerKilobyte);
}

FileRefusal replaceVideo(ThemeResource& theme, const KeyRow& row, const std::string& file) {
    const bool isLock = row.places.front().block == lockVideo;
    const std::string_view message = CheckVideoUpload(file, isLock ? lockVideoLimits : wallpaperVideoLimits);
    if (!message.empty())
        return {0, std::string(message)};
    return {changeKey(theme, row, file), {}};
}

} // namespace

int changeKey(ThemeResource& theme, const KeyRow& row, const std::string& value) {
    if (!isFile(row.kind))
        return changeText(theme, row, value);
    if (const int code = refusalOf(theme, row, value))
        return code;
    return setAll(theme, row, [&](const KeyPlace& place) { return setPlace(theme, place, value); });
}

int restoreKey(ThemeResource& theme, const KeyRow& row) {
    for (const KeyPlace& place : row.places) {
        if (const int code = setPlace(theme, place, place.value); !isSetOrAbsent(code))
            return code;
    }
    return applyAll(theme, row) ? returnCode::success : returnCode::copyFailed;
}

bool canReset(const KeyRow& row, bool changed) {
    if (!changed)
        return false;
    if (!isFile(row.kind))
        return true;
    return !row.isDrawn && (isPlainFile(row.fallback()) || (row.optional && !row.value().empty()));
}

int resetKey(ThemeResource& theme, const KeyRow& row) {
    if (!isFile(row.kind))
        return changeText(theme, row, row.fallback());
    return setAll(theme, row, [&](const KeyPlace& place) {
        if (row.optional && !isPlainFile(place.fallback))
            return theme.clearFileNth(place.path(), place.number);
        ResNode* leaf = theme.findNthNode(place.path(), place.number);
        return leaf ? theme.restoreDefault(leaf) : returnCode::notFound;
    });
}

FileRefusal replaceFile(ThemeResource& theme, const KeyRow& row, const std::string& file) {
    if (row.isDrawn)
        return {0, "kList_drawn"};
    if (row.kind == KeyKind::picture)
        return replacePicture(theme, row, file);
    if (row.kind == KeyKind::video)
        return replaceVideo(theme, row, file);
    return {changeKey(theme, row, file), {}};
}

} // namespace zdt
