#include "assets/templates/demands.h"

#include "model/fileResNode.h"
#include "modules/iconsNode.h"
#include "modules/tables/icons.h"
#include "modules/tables/pictures.h"
#include "modules/themeNode.h"

#include <algorithm>
#include <array>
#include <map>

namespace zdt::assets {

namespace {

/// Outside China, themes of generation 5 have these pictures of the launcher too; the store sets the bit in its trees.
void admitOverseasPictures(ThemeNode& theme, const Generation& generation) {
    const ResNode* pictures = theme.findByPath(KeyPath{"launcher", "image"});
    for (ResNode* child = pictures->firstChild(); child; child = child->next()) {
        if (std::ranges::find(tables::overseasLauncherPictures, child->name()) !=
            tables::overseasLauncherPictures.end())
            child->addTypeBits(generation.bit());
    }
}

/// Previews are made of all other pictures, once these stand.
constexpr std::string_view previewDirectory = "preview/";

bool isDrawnHere(const FileResNode& file) {
    return (file.allowedKinds() & (fileKind::png | fileKind::jpeg)) != 0 && file.path() != previewDirectory;
}

Demand demandOf(const FileResNode& file) {
    Demand demand{file.path(), file.name(), {}, (file.allowedKinds() & fileKind::jpeg) != 0, file.maxBytes()};
    if (!file.sizeRanges().empty()) {
        const SizeRange& range = file.sizeRanges().front();
        demand.size = QSize(static_cast<int>(range.minWidth), static_cast<int>(range.minHeight));
    }
    return demand;
}

/// The ground under icons of other applications. A tree has a node for each one in the theme's folder, so none here,
/// where there is no folder.
Demand iconBackgroundDemand() {
    return demandOf(*makeIconNode(iconBackgroundName(0), std::string(iconsDirectory), true));
}

} // namespace

std::vector<Demand> collectDemands(const Generation& generation) {
    constexpr std::array<TypeMask, 4> kinds{
        typeMask::bigTheme | typeMask::chinese, typeMask::bigTheme | typeMask::otherLanguage,
        typeMask::smallTheme | typeMask::chinese, typeMask::smallTheme | typeMask::otherLanguage};
    std::map<std::string, Demand> demands;
    for (const TypeMask kind : kinds) {
        ThemeNode theme(kind | generation.bit(), "");
        if (kind & typeMask::otherLanguage)
            admitOverseasPictures(theme, generation);
        for (const ResNode* node : theme.collectApplicableNodes({})) {
            const auto* file = dynamic_cast<const FileResNode*>(node);
            if (file && isDrawnHere(*file))
                demands.emplace(file->path() + file->name(), demandOf(*file));
        }
    }
    Demand background = iconBackgroundDemand();
    demands.emplace(background.path(), std::move(background));
    std::vector<Demand> ordered;
    ordered.reserve(demands.size());
    for (auto& [path, demand] : demands)
        ordered.push_back(std::move(demand));
    return ordered;
}

} // namespace zdt::assets
