#include "store/themeResource.h"

#include "lockscreen/amazingUnlockNode.h"
#include "modules/iconsNode.h"
#include "modules/simpleModeTree.h"
#include "modules/themeNode.h"
#include "store/themeLayout.h"
#include "support/assertion.h"
#include "support/files.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace zdt {

namespace {

constexpr const char* source = "themeResource";
constexpr const char* typeKey = "type";
constexpr const char* lockWallpaperKey = "lock wallpaper";

std::string flagText(bool flag) {
    return flag ? "true" : "false";
}

/// Bits that no kind of theme has are dropped, and so are all but the first of several generations, with which no node
/// would take part.
/// @throws std::invalid_argument if the text isn't a number of 32 bits
TypeMask parseTypeMask(const std::string& text) {
    TypeMask mask = 0;
    const char* const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, mask);
    if (result.ec != std::errc() || result.ptr != end)
        throw std::invalid_argument("the type in the settings is no number: " + text);
    return (mask & typeMask::everyKind) | generationBit(generationIndex(mask));
}

/// What a theme without settings is, told by what it holds.
TypeMask deriveTypeMask(const std::string& themeDirectory) {
    TypeMask mask = typeMask::chinese;
    const Description description = readDescriptionFile(themeDirectory + std::string(descriptionFile));
    const auto version = description.find("version");
    mask |= version == description.end() ? typeMask::generation9 : generationBit(generationOfVersion(version->second));
    return mask | (isFolder(themeDirectory + "com.android.mms/") ? typeMask::bigTheme : typeMask::smallTheme);
}

/// @throws std::invalid_argument as `parseTypeMask`
TypeMask typeMaskOf(const KeyValues& settings, const std::string& themeDirectory) {
    const auto type = settings.find(typeKey);
    return type == settings.end() ? deriveTypeMask(themeDirectory) : parseTypeMask(type->second);
}

} // namespace

ThemeResource::ThemeResource(std::string root, std::string name, TypeMask mask)
    : _rootDirectory(std::move(root))
    , _name(std::move(name)) {
    _resTree = std::make_unique<ThemeNode>(mask, themeFolder(_rootDirectory, _name));
    _amazingNode = dynamic_cast<AmazingUnlockNode*>(_resTree->findByPath(KeyPath{"unlock", "amazing"}));
    ZDT_ASSERT(_amazingNode, source);
    _simpleModeTree = buildSimpleModeTree(*_resTree);
}

ThemeResource::~ThemeResource() {
    _simpleModeTree.reset();
    static_cast<void>(saveSettings());
}

std::unique_ptr<ThemeResource> ThemeResource::openTheme(const std::string& themeName, bool chinese,
                                                        const std::string& root) {
    ZDT_ASSERT(!themeName.empty(), source);
    if (!isThemeName(themeName))
        return nullptr;
    const std::string rootDirectory = storeRoot(root);
    KeyValues settings = readKeyValueFile(settingsFile(rootDirectory, themeName));
    const TypeMask mask = typeMaskOf(settings, themeFolder(rootDirectory, themeName));
    std::unique_ptr<ThemeResource> theme(new ThemeResource(rootDirectory, themeName, mask));
    theme->applySettings(settings);
    theme->_savedSettings = std::move(settings);
    theme->setLanguageBit(chinese);
    return theme;
}

TypeMask ThemeResource::readTypeMask(const std::string& name, const std::string& root) {
    if (!isThemeName(name))
        return 0;
    const std::string rootDirectory = storeRoot(root);
    return typeMaskOf(readKeyValueFile(settingsFile(rootDirectory, name)), themeFolder(rootDirectory, name));
}

bool ThemeResource::hasChineseSettings(const std::string& name, const std::string& root) {
    KeyValues settings;
    if (isThemeName(name))
        settings = readKeyValueFile(settingsFile(storeRoot(root), name));
    const auto type = settings.find(typeKey);
    if (type == settings.end())
        return true;
    const TypeMask mask = parseTypeMask(type->second);
    return (mask & typeMask::chinese) != 0 || (mask & typeMask::otherLanguage) == 0;
}

void ThemeResource::applySettings(const KeyValues& settings) {
    const std::string directory = _resTree->path();
    const auto flag = [&](std::string_view package) {
        const auto entry = settings.find(std::string(package));
        if (entry != settings.end())
            return entry->second == "true";
        return isFolder(directory + std::string(dynamicIconsDirectory) + std::string(package));
    };
    std::transform(dynamicIconPackages.begin(), dynamicIconPackages.end(), _hasDynamicIcon.begin(), flag);
    if (const auto entry = settings.find(lockWallpaperKey); entry != settings.end())
        _amazingNode->setHasWallpaper(entry->second == "true");
}

KeyValues ThemeResource::currentSettings() const {
    KeyValues settings{{lockWallpaperKey, flagText(_amazingNode->hasWallpaper())},
                       {typeKey, std::to_string(_resTree->typeMask())}};
    for (std::size_t icon = 0; icon < dynamicIconCount; ++icon)
        settings[std::string(dynamicIconPackages[icon])] = flagText(_hasDynamicIcon[icon]);
    return settings;
}

bool ThemeResource::saveSettings() {
    KeyValues settings = currentSettings();
    const std::string path = settingsFile(_rootDirectory, _name);
    if (settings == _savedSettings && pathExists(path))
        return true;
    if (!isFolder(themeFolder(_rootDirectory, _name))) // Removed by another; it gets no settings anew.
        return false;
    if (!makePath(path) || !writeKeyValueFile(path, settings, Flush::toDisk))
        return false;
    _savedSettings = std::move(settings);
    return true;
}

unsigned ThemeResource::version() const {
    return generationIndex(_resTree->typeMask());
}

bool ThemeResource::isBigTheme() const {
    return _resTree->hasAllBits(typeMask::bigTheme);
}

bool ThemeResource::isChinese() const {
    return _resTree->hasAllBits(typeMask::chinese);
}

void ThemeResource::setBigTheme(bool big) {
    _resTree->removeTypeBits(big ? typeMask::smallTheme : typeMask::bigTheme);
    _resTree->addTypeBits(big ? typeMask::bigTheme : typeMask::smallTheme);
}

void ThemeResource::setLanguageBit(bool chinese) {
    _resTree->removeTypeBits(chinese ? typeMask::otherLanguage : typeMask::chinese);
    _resTree->addTypeBits(chinese ? typeMask::chinese : typeMask::otherLanguage);
    refreshMasks();
}

bool ThemeResource::hasDynamicIcon(DynamicIcon icon) const {
    return _hasDynamicIcon.at(static_cast<std::size_t>(icon));
}

void ThemeResource::setDynamicIcon(DynamicIcon icon, bool has) {
    _hasDynamicIcon.at(static_cast<std::size_t>(icon)) = has;
}

} // namespace zdt
