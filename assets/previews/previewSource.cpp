#include "assets/previews/previewSource.h"

#include "kit/skinFolder.h"
#include "model/template.h"

#include <string_view>

namespace zdt::assets {

namespace fs = std::filesystem;

QImage PreviewSource::picture(const std::string& path) const {
    return QImage(QString::fromStdString(templateDirectory + path));
}

PreviewStore::PreviewStore(const std::string& templates, const std::string& skin)
    : _workingDirectory(fs::current_path())
    , _templates(fs::absolute(templates)) {
    constexpr std::string_view pictures = "simplepic";
    const fs::path folder = root();
    for (const Generation& generation : generations) {
        const fs::path directory = templateDirectory(generation.index);
        fs::create_directory_symlink(_templates / directory.parent_path(), folder / directory.parent_path());
    }
    fs::create_directories(folder / skinFolderName);
    fs::create_directory_symlink(fs::absolute(skin) / pictures, folder / skinFolderName / pictures);
    fs::current_path(folder);
    // What is found out of the skin's pictures is kept in this workspace.
    _points = std::make_unique<ImagePoints>();
}

PreviewStore::~PreviewStore() {
    std::error_code stays;
    fs::current_path(_workingDirectory, stays);
}

std::unique_ptr<ThemeResource> PreviewStore::makeTheme(const Generation& generation) const {
    constexpr int big = 0;
    return ThemeResource::createTheme("Preview " + std::string(generation.version), generation.index, big, false, false,
                                      root());
}

PreviewSource PreviewStore::source(const ThemeResource& theme, const Generation& generation) {
    return {theme, (_templates / templateDirectory(generation.index)).string(), generation, *_points};
}

} // namespace zdt::assets
