#pragma once

#include "device/ninePatchCompiler.h"
#include "editor/pictureEntry.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace zdt {

class ThemeResource;

/// What a page does with a picture that the theme has taken: mirrors it onto its other uses. Gives 0 or a code of the
/// store. Called with the key and the path on the interface thread.
using PictureChanged = std::function<int(const std::string& name, const std::string& path)>;

/// The files that a chooser lists, in the language of the moment.
[[nodiscard]] QString pictureFilter(bool isNinePatch);

/// Why a picture isn't taken; nothing of the theme is changed then.
struct PictureRefusal {
    QString message;       ///< Key of the message to show; empty for none.
    QStringList arguments; ///< For the places of the message.

    [[nodiscard]] bool isNone() const { return message.isEmpty(); }
};

/// A picture that was looked at and, if it is a nine-patch, compiled.
struct PreparedPicture {
    PictureRefusal refusal;
    std::string file;                    ///< What to store; empty for nothing, also where the file has gone.
    std::shared_ptr<QTemporaryDir> kept; ///< Holds a compiled file until it is stored.

    [[nodiscard]] bool isFit() const { return refusal.isNone() && !file.empty(); }
};

/// Tests a file for an entry: its kind, its name, its bytes, its pixels, and compiles a nine-patch, which may take
/// seconds. Touches no theme, so that any thread may call it.
/// @param workspace where compiled files lie, below "Temp9Png/"; ends in "/"
[[nodiscard]] PreparedPicture preparePicture(const PictureEntry& entry, const std::string& path,
                                             const NinePatchCompiler& compiler, const std::string& workspace);

/// What storing gave; both codes are 0 if it was done.
struct StoredPicture {
    int storeResult = 0;
    int pageResult = 0;

    [[nodiscard]] int code() const { return storeResult != 0 ? storeResult : pageResult; }
    /// The key of the message that tells it; empty for success.
    [[nodiscard]] std::string_view message() const;
};

/// Puts a file in the place of an entry's files: all of them, or none. A picture of the shared widgets is tested for
/// all applications first.
[[nodiscard]] StoredPicture storePicture(ThemeResource& theme, const PictureEntry& entry, const std::string& file,
                                         const PictureChanged& changed);

/// What became of an upload. A file that has gone is neither stored nor refused.
struct UploadResult {
    bool isStored = false;
    PictureRefusal refusal;
};

/// `storePicture` of what was prepared. On success the entry has its new files, the path and no failure.
/// @param path what the author gave
[[nodiscard]] UploadResult finishUpload(ThemeResource& theme, PictureEntry& entry, const std::string& path,
                                        const PreparedPicture& prepared, const PictureChanged& changed);

/// Puts an entry back to the template's pictures; 0 or a code of the store.
[[nodiscard]] int resetPicture(ThemeResource& theme, PictureEntry& entry, const PictureChanged& changed);

/// Copies an entry's picture to a path, over what stands there. The working directory stays.
/// @return what stands in the way, if anything
[[nodiscard]] PictureRefusal savePictureAs(const PictureEntry& entry, const std::string& path);

} // namespace zdt
