#pragma once

#include "assets/art/generation.h"
#include "canvas/imagePoints.h"
#include "store/themeResource.h"

#include <QImage>
#include <QTemporaryDir>

#include <filesystem>
#include <memory>
#include <string>

namespace zdt::assets {

/// A template's theme, of which pictures are made.
struct PreviewSource {
    const ThemeResource& theme;
    std::string templateDirectory; ///< Ending in "/".
    const Generation& generation;
    ImagePoints& points;

    /// A picture of the template, such as "icons/com.android.mms.png"; null if it can't be read.
    [[nodiscard]] QImage picture(const std::string& path) const;
};

/// A store of its own for themes made of the templates, with the skin's pictures of the screens, as the working
/// directory of the process. It is gone with all that was written there when this ends.
class PreviewStore {
public:
    /// @param templates, skin existing folders; `skin` holds "simplepic/"
    PreviewStore(const std::string& templates, const std::string& skin);
    ~PreviewStore();
    PreviewStore(const PreviewStore&) = delete;
    PreviewStore& operator=(const PreviewStore&) = delete;

    /// Makes a big theme under an English interface as every maker of one does. Null without the template.
    [[nodiscard]] std::unique_ptr<ThemeResource> makeTheme(const Generation& generation) const;
    [[nodiscard]] PreviewSource source(const ThemeResource& theme, const Generation& generation);

private:
    [[nodiscard]] std::string root() const { return _folder.path().toStdString() + "/"; }

    std::filesystem::path _workingDirectory; ///< Of the process before.
    std::filesystem::path _templates;
    QTemporaryDir _folder;
    std::unique_ptr<ImagePoints> _points;
};

} // namespace zdt::assets
