#pragma once

#include <QImage>
#include <QString>

#include <string>
#include <string_view>

namespace zdt {

class ThemeResource;

/// What came of a capture.
struct PreviewCapture {
    QString message; ///< Key of the text to show, which names no outcome; empty where there was nothing to capture.
    bool stored = false;
    std::string file; ///< The preview in the theme; empty if none was stored.
};

/// Whether a package shows previews of the module's screens.
[[nodiscard]] bool hasCapture(std::string_view module);

/// "preview_<module>_<index>.jpg"; the messages have one preview, whatever the index.
[[nodiscard]] std::string captureName(std::string_view module, int index);

/// Makes a composed preview the theme's preview picture: of the size that its place asks for, by the best quality that
/// makes it small enough. A preview that stands stays when that fails.
/// @param workspace where the folder "screencapture/" is made; ends in "/"
/// @param index of the screen; below 0 for none
[[nodiscard]] PreviewCapture capturePreview(ThemeResource& theme, const std::string& workspace, std::string_view module,
                                            int index, const QImage& composed);

} // namespace zdt
