#include "editor/pictureUpload.h"

#include "editor/codeWords.h"
#include "editor/keyChange.h"
#include "editor/moduleWords.h"
#include "editor/pictureTable.h"
#include "editor/sizeHint.h"
#include "kit/localisation.h"
#include "model/returnCode.h"
#include "packaging/pictureCheck.h"
#include "packaging/pictureConversion.h"
#include "packaging/uploadMessages.h"
#include "store/themeResource.h"
#include "support/files.h"

#include <QImage>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>
#include <vector>

namespace zdt {

namespace {

constexpr const char* plainWanted = "kWarn_replace_right_format_picture";
constexpr const char* ninePatchWanted = "kWarn_replace_nine_patch_picture";
constexpr const char* wrongSize = "kWarn_replace_right_size_picture";
constexpr const char* cannotStore = "kWarn_upload_systemui_pic";
constexpr const char* damaged = "kPicture_damaged";
constexpr const char* unreadable = "kBatch_reason_41";
constexpr const char* toolMissing = "kBatch_reason_40";

/// Whether the path names a nine-patch, as the forms of the pictures tell it: anywhere but at its very begin.
bool holdsNinePatchMark(const std::string& path) {
    const std::size_t mark = path.find(".9.png");
    return mark != std::string::npos && mark > 0;
}

QString keyOf(std::string_view key) {
    return QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

PictureRefusal refusalOf(const PictureEntry& entry, const std::string& path) {
    const bool isNinePatch = entry.isNinePatch();
    if (!isNinePatch && holdsNinePatchMark(path))
        return {plainWanted, {}};
    if (isNinePatch && !path.ends_with(".9.png"))
        return {ninePatchWanted, {}};
    const PictureCheck check = CheckPictureUpload(path, false, pictureLimit, kWarn_upload_lessthenoneM_png_pic);
    if (!check.passes)
        return {check.message.empty() ? unreadable : keyOf(check.message), {}};
    const SizeRule rule = parseSizeHint(entry.sizeHint.toStdString());
    // The theme says better what is wrong with one that can't be read.
    const bool isRead = check.width > 0 && check.height > 0;
    if (isRead && !rule.allows(check.width, check.height))
        return {wrongSize, {QString("%1*%2").arg(check.width).arg(check.height), entry.sizeHint}};
    // Its head may be sound, and the rest cut. A nine-patch is read by its compiler.
    if (isRead && !isNinePatch && loadPicture(path).isNull())
        return {damaged, {}};
    return {};
}

PictureRefusal refusalOf(const NinePatchResult& result) {
    switch (result.outcome) {
    case NinePatchOutcome::done:
    case NinePatchOutcome::alreadyCompiled:
    case NinePatchOutcome::cancelled:
        return {};
    case NinePatchOutcome::missingTool:
    case NinePatchOutcome::timedOut:
        return {toolMissing, {}};
    case NinePatchOutcome::refused:
        return {"kWarn_nine_patch_refused", {QString::fromStdString(result.reason)}};
    case NinePatchOutcome::unreadable:
        return {unreadable, {}};
    }
    return {};
}

/// The files of an entry as they were, to go back to.
class KeptFiles {
public:
    explicit KeptFiles(const PictureEntry& entry) {
        for (std::size_t at = 0; at < entry.places.size(); ++at) {
            const std::string& file = entry.places[at].value;
            const std::string copy = _folder.filePath(QString::number(at) + ".png").toStdString();
            _copies.push_back(!file.empty() && _folder.isValid() && copyFile(file, copy) ? copy : std::string());
        }
    }

    void restore(ThemeResource& theme, const PictureEntry& entry) const {
        for (std::size_t at = 0; at < entry.places.size(); ++at) {
            const KeyPlace& place = entry.places[at];
            static_cast<void>(_copies[at].empty() ? theme.clearFileNth(place.path(), place.number)
                                                  : theme.setValueNth(place.path(), place.number, _copies[at]));
        }
    }

private:
    QTemporaryDir _folder;
    std::vector<std::string> _copies;
};

int orAbsent(int code) {
    return code == returnCode::notFound ? returnCode::success : code;
}

} // namespace

QString pictureFilter(bool isNinePatch) {
    return Text("kBatch_filter") + (isNinePatch ? " (*.9.png)" : " (*.png)");
}

std::string_view StoredPicture::message() const {
    const auto either = [this](int code) { return storeResult == code || pageResult == code; };
    if (code() == 0)
        return {};
    if (either(returnCode::wrongByteSize))
        return kWarn_upload_lessthenoneM_png_pic;
    return either(returnCode::unreadablePicture) ? "KWarn_upload_JPGPNG" : cannotStore;
}

PreparedPicture preparePicture(const PictureEntry& entry, const std::string& path, const NinePatchCompiler& compiler,
                               const std::string& workspace) {
    PreparedPicture prepared;
    if (!isPlainFile(path))
        return prepared;
    prepared.refusal = refusalOf(entry, path);
    if (!prepared.refusal.isNone())
        return prepared;
    prepared.file = path;
    if (!entry.isNinePatch() || isCompiledNinePatch(path))
        return prepared;
    const std::string folder = workspace + "Temp9Png/";
    static_cast<void>(makePath(folder));
    prepared.kept = std::make_shared<QTemporaryDir>(QString::fromStdString(folder) + "one-XXXXXX");
    prepared.file = prepared.kept->filePath(QString::fromStdString(entry.name)).toStdString();
    prepared.refusal =
        prepared.kept->isValid() ? refusalOf(compiler.compile(path, prepared.file)) : PictureRefusal{unreadable, {}};
    return prepared;
}

StoredPicture storePicture(ThemeResource& theme, const PictureEntry& entry, const std::string& file,
                           const PictureChanged& changed) {
    StoredPicture stored;
    std::optional<KeptFiles> before;
    if (changed)
        before.emplace(entry);
    const int code = orAbsent(changeKey(theme, keyRowOf(theme, entry), file));
    const bool isShared = entry.module == sharedModule;
    (isShared ? stored.pageResult : stored.storeResult) = code;
    if (code != 0 || !changed)
        return stored;
    stored.pageResult = changed(entry.name, file);
    if (stored.pageResult != 0)
        before->restore(theme, entry);
    return stored;
}

UploadResult finishUpload(ThemeResource& theme, PictureEntry& entry, const std::string& path,
                          const PreparedPicture& prepared, const PictureChanged& changed) {
    if (!prepared.isFit())
        return {false, prepared.refusal};
    const StoredPicture stored = storePicture(theme, entry, prepared.file, changed);
    if (stored.code() != 0)
        return {false, {keyOf(stored.message()), {}}};
    entry.uploadedPath = path;
    entry.failed = false;
    entry.error.clear();
    refreshEntry(theme, entry);
    return {true, {}};
}

int resetPicture(ThemeResource& theme, PictureEntry& entry, const PictureChanged& changed) {
    const int code = resetKey(theme, keyRowOf(theme, entry));
    if (code != 0)
        return code;
    refreshEntry(theme, entry);
    entry.uploadedPath.clear();
    entry.failed = false;
    entry.error.clear();
    return changed ? changed(entry.name, entry.file()) : returnCode::success;
}

PictureRefusal savePictureAs(const PictureEntry& entry, const std::string& path) {
    const std::string& file = entry.file();
    if (!isPlainFile(file))
        return {codeKey(returnCode::missingFile), {}};
    std::error_code failure;
    if (isTaken(path) && std::filesystem::equivalent(file, path, failure))
        return {codeKey(returnCode::sameFile), {}};
    if (!copyFile(file, path))
        return {codeKey(returnCode::copyFailed), {}};
    return {};
}

} // namespace zdt
