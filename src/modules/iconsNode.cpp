#include "modules/iconsNode.h"

#include "model/fileResNode.h"
#include "modules/imageNode.h"
#include "modules/tables/icons.h"
#include "support/files.h"
#include "support/pattern.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <span>
#include <vector>

namespace zdt {

namespace {

const std::string backgroundPattern = R"(icon_background(_\d\d)?\.png)";

/// Icons may be larger below generation 9.
bool hasOneIconSize(const ResNode& node) {
    return (node.rootTypeMask() & typeMask::generation9) != 0;
}

void addIcon(ResNode& parent, std::string_view name, const std::string& directory) {
    parent.adopt(makeIconNode(std::string(name), directory, hasOneIconSize(parent)));
}

void addIcons(ResNode& parent, std::span<const std::string_view> names, const std::string& directory) {
    for (const std::string_view name : names)
        addIcon(parent, name, directory);
}

std::string dynamicDirectory(std::string_view package) {
    return std::string(dynamicIconsDirectory) + std::string(package) + "/";
}

const std::set<std::string_view>& protectedNames() {
    static const std::set<std::string_view> names = [] {
        std::set<std::string_view> all{tables::calendarBackground, tables::clockBackground};
        for (const std::span<const std::string_view> list :
             {std::span<const std::string_view>(tables::staticIcons),
              std::span<const std::string_view>(tables::fixedIcons),
              std::span<const std::string_view>(tables::shortcutPictures),
              std::span<const std::string_view>(tables::weatherPictures),
              std::span<const std::string_view>(tables::widgetPictures),
              std::span<const std::string_view>(tables::iconRules)})
            all.insert(list.begin(), list.end());
        return all;
    }();
    return names;
}

} // namespace

bool isProtectedIcon(const std::string& name) {
    return protectedNames().contains(name) || name.find("icon_background") != std::string::npos;
}

std::string iconBackgroundName(unsigned index) {
    if (index > 99)
        return {};
    if (index == 0)
        return "icon_background.png";
    const std::string digits = std::to_string(index);
    return "icon_background_" + std::string(2 - digits.size(), '0') + digits + ".png";
}

StaticSystemNode::StaticSystemNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "static") {
    setPath(std::string(iconsDirectory));
    addIcons(*this, tables::staticIcons, path());
    loadChildrenFromTheme(*this);
}

DynamicSystemNode::DynamicSystemNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "dynamic_icons") {
    setPath(std::string(dynamicIconsDirectory));
    addIcon(*this, tables::calendarBackground, dynamicDirectory(calendarPackage));
    addIcon(*this, tables::clockBackground, dynamicDirectory(clockPackage));
    addIcons(*this, tables::weatherPictures, dynamicDirectory(weatherPackage));
    loadChildrenFromTheme(*this);
}

SystemIconsNode::SystemIconsNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "system") {
    setPath(std::string(iconsDirectory));
    emplaceChild<StaticSystemNode>();
    emplaceChild<DynamicSystemNode>();
}

ThirdpartyIconsNode::ThirdpartyIconsNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "thirdparty") {
    const std::string directory(iconsDirectory);
    setPath(directory);
    auto& mode = emplaceChild<ResNode>(typeMask::everywhere, "mode");
    auto& image = emplaceChild<ResNode>(typeMask::everywhere, "image");
    mode.setPath(directory);
    image.setPath(directory);
    addIcons(mode, tables::iconRules, directory);

    // A folder is listed in any order; a sorted one gives the same tree on every machine.
    std::vector<std::string> names;
    if (!rootDirectory().empty())
        names = listFiles(nodeDirectory());
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) {
        if (matchesPattern(name, backgroundPattern))
            addIcon(mode, name, directory);
        else if (name.ends_with(".png") && !protectedNames().contains(name))
            addIcon(image, name, directory);
    }
    loadChildrenFromTheme(mode);
    loadChildrenFromTheme(image);
}

IconsNode::IconsNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "icons") {
    setPath(std::string(iconsDirectory));
    emplaceChild<SystemIconsNode>();
    emplaceChild<ThirdpartyIconsNode>();
}

} // namespace zdt
