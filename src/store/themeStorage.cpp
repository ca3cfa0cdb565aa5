#include "model/template.h"
#include "modules/themeNode.h"
#include "store/storeLock.h"
#include "store/themeLayout.h"
#include "store/themeResource.h"
#include "support/files.h"

#include <algorithm>
#include <cerrno>

/// The operations of the store on themes that aren't open: listing, making, deleting and reading about them.
namespace zdt {

namespace {

/// Copies a template. The directories of its two lock screens land in one.
bool copyTemplateTree(const std::string& source, const std::string& target) {
    for (const std::string& name : listFiles(source)) {
        if (!copyFile(source + name, target + name))
            return false;
    }
    for (const std::string& name : listDirectories(source)) {
        if (name == "unlock_magazine")
            continue;
        const bool isLockScreen = name == "unlock_amazing" || name == "unlock_slide";
        if (!copyTemplateTree(source + name + "/", target + (isLockScreen ? "unlock" : name) + "/"))
            return false;
    }
    return true;
}

/// Removes a theme's folder. It is moved aside in one step first, so that no half theme is ever listed; where there is
/// no room or no way to do that, it is removed in its place.
bool removeTheme(const std::string& root, const std::string& name) {
    const std::string place = parentPath(themeFolder(root, name));
    if (!isTaken(place))
        return true;
    const WorkLock lock(root);
    const std::string aside = stagingFolder(root, name);
    if (!lock.isHeld() || !makePath(aside))
        return removeTree(place);
    if (moveIntoPlace(place, aside + name, Flush::no))
        return removeTree(aside);
    const bool otherFileSystem = errno == EXDEV;
    static_cast<void>(removeTree(aside));
    return otherFileSystem && removeTree(place);
}

} // namespace

std::vector<std::string> ThemeResource::listThemes(const std::string& root) {
    std::vector<std::string> names = listDirectories(themesFolder(storeRoot(root)));
    std::erase_if(names, [](const std::string& name) { return !isThemeName(name); });
    std::sort(names.begin(), names.end());
    return names;
}

bool ThemeResource::copyTemplate(const std::string& root, const std::string& name, unsigned versionIndex) {
    const std::string source = locateTemplate(root, versionIndex);
    const std::string staging = stagingFolder(root, name);
    const std::string target = themeFolder(root, name);
    const WorkLock lock(root);
    const bool placed = isFolder(source) && lock.isHeld() && makePath(staging) && copyTemplateTree(source, staging) &&
                        makePath(themesFolder(root)) && moveIntoPlace(staging, parentPath(target), Flush::no);
    return placed || (static_cast<void>(removeTree(staging)), false);
}

std::unique_ptr<ThemeResource> ThemeResource::createTheme(const std::string& name, unsigned versionIndex,
                                                          int smallTheme, bool overwrite, bool chinese,
                                                          const std::string& root) {
    if (!isThemeName(name) || versionIndex >= generationCount)
        return nullptr;
    const std::string rootDirectory = storeRoot(root);
    const std::vector<std::string> themes = listThemes(rootDirectory);
    const bool isNew = std::find(themes.begin(), themes.end(), name) == themes.end();
    if (isNew && !copyTemplate(rootDirectory, name, versionIndex))
        return nullptr;
    if (!isNew && overwrite && !removeTree(themeFolder(rootDirectory, name)))
        return nullptr;

    const TypeMask mask = generationBit(versionIndex) | (smallTheme ? typeMask::smallTheme : typeMask::bigTheme) |
                          (chinese ? typeMask::chinese : typeMask::otherLanguage);
    std::unique_ptr<ThemeResource> theme(new ThemeResource(rootDirectory, name, mask));
    theme->setLanguageBit(chinese);
    theme->setVersion(versionIndex);
    bool described = !theme->makeVersionTextAgree();
    if (isNew && !chinese) {
        theme->setValues({}, {{"title-cn", "Chinese Name"}, {"author", "Author Name"}, {"designer", "Designer Name"}});
        described = false;
    }
    if (described || theme->applyNode({}))
        return theme;
    theme.reset();
    if (isNew)
        static_cast<void>(deleteTheme(name, rootDirectory));
    return nullptr;
}

bool ThemeResource::deleteTheme(const std::string& name, const std::string& root) {
    if (!isThemeName(name))
        return false;
    const std::string rootDirectory = storeRoot(root);
    if (!removeTheme(rootDirectory, name))
        return false;
    const std::string settings = settingsFolder(rootDirectory);
    const std::vector<std::string> files = listFiles(settings);
    return std::all_of(files.begin(), files.end(), [&](const std::string& file) {
        return !file.starts_with(name + "_") || removeFile(settings + file);
    });
}

Description ThemeResource::readDescription(const std::string& name, const std::string& root) {
    Description description;
    if (isThemeName(name))
        description = readDescriptionFile(themeFolder(storeRoot(root), name) + std::string(descriptionFile));
    for (const DescriptionField& field : descriptionFields)
        description.try_emplace(std::string(field.key));
    return description;
}

std::vector<std::string> ThemeResource::previewFiles(const std::string& name, const std::string& root) {
    std::vector<std::string> files;
    if (!isThemeName(name))
        return files;
    const std::string folder = themeFolder(storeRoot(root), name) + "preview/";
    for (const std::string& file : listFiles(folder)) {
        if (file.find(".jpg") != std::string::npos)
            files.push_back(folder + file);
    }
    return files;
}

std::uint64_t ThemeResource::themeSize(const std::string& name, const std::string& root) {
    return isThemeName(name) ? treeSize(themeFolder(storeRoot(root), name)) : 0;
}

} // namespace zdt
