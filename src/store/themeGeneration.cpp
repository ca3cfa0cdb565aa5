#include "lockscreen/amazingUnlockNode.h"
#include "model/fileResNode.h"
#include "modules/tables/icons.h"
#include "modules/tables/pictures.h"
#include "modules/themeNode.h"
#include "modules/wallpaperNode.h"
#include "store/themeResource.h"
#include "support/assertion.h"

#include <array>
#include <string_view>

/// What a theme's generation decides: sizes, masks and defaults.
namespace zdt {

namespace {

constexpr const char* source = "themeResource";

/// The version text of a new theme, by generation index. Its first sign is what a package tells of its generation.
constexpr std::array<const char*, generationCount> versionTexts{"5.0.1", "8.0.1", "9.0.100"};

/// Gives a file new sizes and looks again whether the one that the theme has fits them.
void resize(ResNode* node, std::vector<SizeRange> sizes) {
    auto* file = dynamic_cast<FileResNode*>(node);
    if (!file)
        return;
    file->setSizeRanges(std::move(sizes));
    file->loadFromTheme();
}

} // namespace

void ThemeResource::applySizeLimits(unsigned versionIndex) {
    const bool tall = versionIndex == generation9Index;
    _amazingNode->setScreenHeight(tall ? tallScreenHeight : screenHeight);

    ResNode* previewNode = node({"preview"});
    ZDT_ASSERT(previewNode, source);
    for (ResNode* picture = previewNode->firstChild(); picture; picture = picture->next()) {
        if (!isProtectedPreview(picture->name()))
            resize(picture, {previewSize(picture->name(), tall)});
    }
    for (const std::string_view name : {homeWallpaper, unlockWallpaper})
        resize(findLeaf({"wallpaper", "image"}, std::string(name)), {wallpaperSize(name, tall)});

    ResNode* node = this->node({"icons"});
    ZDT_ASSERT(node, source);
    for (ResNode* icon : node->collectLeaves())
        resize(icon, iconSizes(tall));
}

void ThemeResource::setVersion(unsigned versionIndex) {
    const unsigned old = version();
    if (old == generation9Index || versionIndex == generation9Index)
        applySizeLimits(versionIndex);
    _resTree->removeTypeBits(typeMask::allGenerations);
    _resTree->addTypeBits(generationBit(versionIndex));
    refreshMasks();
    if (versionIndex != old)
        restoreInvalidDefaults();
}

bool ThemeResource::changeGeneration(unsigned versionIndex) {
    if (versionIndex >= generationCount)
        return false;
    const unsigned old = version();
    const std::string oldText = findLeaf({}, "version")->value();
    setVersion(versionIndex);
    makeVersionTextAgree();
    if (saveSettings() && applyNode({}))
        return true;
    setVersion(old);
    findLeaf({}, "version")->setRawValue(oldText);
    static_cast<void>(saveSettings());
    return false;
}

bool ThemeResource::makeVersionTextAgree() {
    ResNode* text = findLeaf({}, "version");
    const std::string_view agreeing = versionTexts.at(version());
    if (text->value().starts_with(agreeing.front()))
        return false;
    text->setRawValue(std::string(agreeing));
    return true;
}

void ThemeResource::refreshMasks() {
    const bool isGeneration5 = version() == 0;
    for (const std::string_view name : {tables::overseasVideoIcon, tables::smartHomeIcon}) {
        if (ResNode* icon = findLeaf({"icons", "system", "static"}, std::string(name)))
            icon->setTypeMask(typeMask::everywhere & ~(isGeneration5 && isChinese() ? typeMask::chinese : 0));
    }

    const bool inGeneration5 = version() == 1 || (isGeneration5 && !isChinese());
    const ResNode* pictures = node({"launcher", "image"});
    for (const std::string_view overseas : tables::overseasLauncherPictures) {
        const std::string name(overseas);
        for (ResNode* picture = pictures->findChild(name); picture; picture = pictures->findChild(name, picture)) {
            picture->removeTypeBits(typeMask::generation5);
            picture->addTypeBits(inGeneration5 ? typeMask::generation5 : 0);
        }
    }
}

void ThemeResource::restoreInvalidDefaults() {
    ZDT_ASSERT(_resTree, source);
    if (isBigTheme())
        return;
    ResNode* commonNode = node({"launcher", "commonSetting", "image"});
    ZDT_ASSERT(commonNode, source);
    std::set<ResNode*> leaves = commonNode->collectLeaves();
    if (version() != generation9Index) {
        ResNode* launcherImageNode = node({"launcher", "image"});
        ZDT_ASSERT(launcherImageNode, source);
        leaves.merge(launcherImageNode->collectLeaves());
    }
    for (ResNode* picture : leaves) {
        // A template that lacks the picture leaves it missing, and the check before an export lists it.
        if (picture->isApplicable() && picture->name().find('.') != std::string::npos &&
            picture->validate(picture->value()) != returnCode::success)
            static_cast<void>(restoreDefault(picture));
    }
}

} // namespace zdt
