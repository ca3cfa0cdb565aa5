#include "editor/keyChange.h"

#include "lockscreen/unlockConfigNode.h"
#include "model/resNode.h"
#include "model/returnCode.h"
#include "packaging/pictureCheck.h"
#include "packaging/pictureConversion.h"
#include "packaging/uploadMessages.h"
#include "packaging/videoLimits.h"
#include "store/themeResource.h"
#include "support/files.h"
#include "support/text.h"

#include <QTemporaryDir>

#include <algorithm>
#include <optional>
#include <vector>

namespace zdt {

namespace {

constexpr std::uint64_t bytesPerKilobyte = 1024;
const KeyPath lockVideo{"unlock", "video", "image_set"};
constexpr const char* lockStyle = "unlock/config/style";
constexpr const char* lockFolder = "unlock/config/dynamicPath";

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

/// The values of a row's places, to go back to. Those of files are copies, for the files themselves are overwritten.
class OldValues {
public:
    OldValues(const ThemeResource& theme, const KeyRow& row) {
        for (const KeyPlace& place : row.places) {
            const std::string value = theme.getValueNth(place.path(), place.number);
            _values.push_back(isFile(row.kind) ? copyOf(value) : value);
        }
    }

    /// Puts the first `count` places back. What can't be written now still can't be.
    void restore(ThemeResource& theme, const KeyRow& row, std::size_t count) const {
        for (std::size_t index = 0; index < count; ++index) {
            const KeyPlace& place = row.places[index];
            if (isFile(row.kind) && _values[index].empty())
                static_cast<void>(theme.clearFile(place.path()));
            else
                static_cast<void>(setPlace(theme, place, _values[index]));
        }
    }

private:
    std::string copyOf(const std::string& file) {
        if (file.empty())
            return file;
        const std::string copy = _folder.filePath(QString::number(_values.size())).toStdString() + extension(file);
        return copyFile(file, copy) ? copy : std::string();
    }

    QTemporaryDir _folder;
    std::vector<std::string> _values;
};

/// `set` for each place. A failure puts those before it back; one alone is left as it was by the store.
template <typename Set>
int setAll(ThemeResource& theme, const KeyRow& row, Set set) {
    std::optional<OldValues> before;
    if (row.hasCopies())
        before.emplace(theme, row);
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
    if (row.key == lockStyle)
        return theme.setLockScreenType(value);
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

FileRefusal replacePicture(ThemeResource& theme, const KeyRow& row, const std::string& file) {
    constexpr const char* plainWanted = "kWarn_replace_right_format_picture";
    const std::uint64_t limit = row.maxBytes > 0 ? row.maxBytes / bytesPerKilobyte : pictureLimit;
    const PictureCheck check = CheckPictureUpload(file, false, limit, messageOfLimit(row));
    if (!check.passes)
        return {check.message.empty() ? returnCode::missingFile : 0, check.message};
    if (isNinePatch(file) && !isNinePatch(row.name()))
        return {0, plainWanted};
    if (row.kinds != fileKind::jpeg || fileKindOf(file) != fileKind::png)
        return {changeKey(theme, row, file), {}};
    if (!fits(row, check))
        return {returnCode::wrongDimensions, {}};
    const QTemporaryDir folder;
    const std::string jpeg = folder.filePath("picture.jpg").toStdString();
    if (!folder.isValid() || !copyFile(file, jpeg))
        return {returnCode::copyFailed, {}};
    if (!EncodeJpegInPlace(jpeg, ordinaryJpegQuality))
        return {returnCode::unreadablePicture, {}};
    return {changeKey(theme, row, jpeg), {}};
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
    return !isFile(row.kind) || !row.fallback().empty() || (row.optional && !row.value().empty());
}

int resetKey(ThemeResource& theme, const KeyRow& row) {
    if (!isFile(row.kind))
        return changeText(theme, row, row.fallback());
    return setAll(theme, row, [&](const KeyPlace& place) {
        if (place.fallback.empty() && row.optional)
            return theme.clearFile(place.path());
        ResNode* leaf = theme.findNthNode(place.path(), place.number);
        return leaf ? theme.restoreDefault(leaf) : returnCode::notFound;
    });
}

FileRefusal replaceFile(ThemeResource& theme, const KeyRow& row, const std::string& file) {
    if (row.kind == KeyKind::picture)
        return replacePicture(theme, row, file);
    if (row.kind == KeyKind::video)
        return replaceVideo(theme, row, file);
    return {changeKey(theme, row, file), {}};
}

} // namespace zdt
