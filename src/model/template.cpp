#include "model/template.h"

#include "support/files.h"

#include <array>
#include <string_view>

namespace zdt {

std::string templateDirectory(unsigned generationIndex) {
    static constexpr std::array<std::string_view, 3> names{"default5.0/", "default8.0/", "default9.1/"};
    return generationIndex < names.size() ? std::string(names[generationIndex]) : std::string();
}

std::string locateTemplate(const std::string& storeRoot, unsigned generationIndex) {
    const std::string name = templateDirectory(generationIndex);
    if (name.empty())
        return {};
    const std::string inRoot = storeRoot + name;
    const std::string besideProgram = programDirectory() + name;
    return !isFolder(inRoot) && isFolder(besideProgram) ? besideProgram : inRoot;
}

std::string templateFile(const std::string& templatePath, const std::string& file) {
    static constexpr std::string_view lockScreen = "unlock/";
    if (!file.starts_with(lockScreen))
        return templatePath + file;
    const std::string rest = file.substr(lockScreen.size());
    const std::string designed = templatePath + "unlock_amazing/" + rest;
    const std::string slide = templatePath + "unlock_slide/" + rest;
    return !pathExists(designed) && pathExists(slide) ? slide : designed;
}

std::string storeRootOf(const std::string& themeDirectory) {
    if (themeDirectory.empty())
        return "./";
    std::string path = themeDirectory;
    while (path.ends_with('/'))
        path.pop_back();
    const std::string root = parentPath(parentPath(path));
    return root.empty() && !path.starts_with('/') ? std::string() : root + "/";
}

} // namespace zdt
