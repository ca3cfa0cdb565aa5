#include "modules/previewNode.h"

#include "model/fileResNode.h"
#include "modules/imageNode.h"
#include "support/files.h"
#include "support/pattern.h"

#include <algorithm>
#include <array>
#include <vector>

namespace zdt {

namespace {

constexpr std::array<const char*, 9> fixedPreviews{
    "cover.jpg",
    "icon_small.jpg",
    "icon_small_1.jpg",
    "preview_contacts_0.jpg",
    "preview_icons_0.jpg",
    "preview_mms_0.jpg",
    "preview_systemui_0.jpg",
    "preview_unlock_0.jpg",
    "preview_widget_0.jpg",
};

constexpr std::array<const char*, 6> previewModules{"unlock", "widget", "icons", "contacts", "mms", "systemui"};

/// The numbered previews in a folder that no fixed name covers, in the order of their names.
std::vector<std::string> furtherPreviews(const std::string& directory) {
    std::vector<std::string> names = listFiles(directory);
    std::erase_if(names, [](const std::string& name) {
        std::vector<std::string> groups;
        return !matchesPattern(name, numberedPreviewPattern, groups) ||
               std::find(previewModules.begin(), previewModules.end(), groups[0]) == previewModules.end() ||
               std::find(fixedPreviews.begin(), fixedPreviews.end(), name) != fixedPreviews.end();
    });
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

PreviewNode::PreviewNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "preview") {
    setPath("preview/");
    std::vector<std::string> names(fixedPreviews.begin(), fixedPreviews.end());
    if (const std::string directory = nodeDirectory(); !directory.empty()) {
        const std::vector<std::string> further = furtherPreviews(directory);
        names.insert(names.end(), further.begin(), further.end());
    }
    const bool tall = (rootTypeMask() & typeMask::generation9) != 0;
    for (const std::string& name : names)
        adopt(makePreviewNode(name, path(), tall));
    loadChildrenFromTheme(*this);
}

} // namespace zdt
