#include "lockscreen/amazingUnlockNode.h"
#include "lockscreen/customUnlockNode.h"
#include "lockscreen/unlockConfigNode.h"
#include "model/fileResNode.h"
#include "modules/iconsNode.h"
#include "modules/previewNode.h"
#include "modules/tables/icons.h"
#include "modules/themeNode.h"
#include "packaging/zipFolder.h"
#include "store/themeLayout.h"
#include "store/themeResource.h"
#include "support/files.h"
#include "support/pattern.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

/// Checking a theme, writing a copy of it, and making a package of that.
namespace zdt {

namespace {

/// The share of an export's time that each step takes, for its progress.
constexpr double savedShare = 0.1;
constexpr double foldedShare = 0.6;

constexpr std::array<std::string_view, 3> plainFolders{"unlock/", "wallpaper/", "preview/"};

Progress partOf(const Progress& progress, double from, double to) {
    if (!progress)
        return {};
    return [&progress, from, to](double done) { progress(from + done * (to - from)); };
}

/// Turns a folder into an archive of that name, with no extension. An empty one is dropped: an archive of nothing
/// leaves no file.
bool foldModule(const std::string& scratch, const std::string& folder) {
    const std::string path = scratch + folder;
    const std::string name = scratch + parentPath(folder);
    const std::optional<std::vector<FolderEntry>> entries = listEntries(path);
    if (entries && entries->empty())
        return RemoveFolder(path);
    return ZipFolder(path, name + ".zip", false) && RemoveFolder(path) && moveIntoPlace(name + ".zip", name, Flush::no);
}

/// Puts a finished package in its place, which may lie on another file system. The folder there never holds half of
/// one.
bool placePackage(const std::string& finished, const std::string& packagePath) {
    return moveIntoPlace(finished, packagePath, Flush::toDisk) ||
           (copyFile(finished, packagePath) && flushToDisk(packagePath));
}

void insertChildren(std::set<ResNode*>& nodes, const ResNode* parent, const auto& isMeant) {
    for (ResNode* child = parent ? parent->firstChild() : nullptr; child; child = child->next()) {
        if (isMeant(*child))
            nodes.insert(child);
    }
}

/// A preview numbered above 0 without a fitting file.
bool isMissingFurtherPreview(ResNode& preview) {
    std::vector<std::string> groups;
    return matchesPattern(preview.name(), numberedPreviewPattern, groups) && groups[1] != "0" &&
           preview.validate(preview.value()) != returnCode::success;
}

} // namespace

std::set<ResNode*> ThemeResource::checkDynamicIcons() const {
    std::set<ResNode*> skipped;
    insertChildren(skipped, node({"icons", "system", "dynamic_icons"}), [&](const ResNode& icon) {
        if (icon.name() == tables::calendarBackground)
            return !_hasDynamicCalendar;
        return icon.name() == tables::clockBackground ? !_hasDynamicClock : !_hasDynamicWeather;
    });

    const ResNode* unlock = node({"unlock"});
    const bool isVideo = unlock->value() == unlockType::video;
    insertChildren(skipped, node({"wallpaper"}),
                   [&](const ResNode& kind) { return (kind.name() == "image") == isVideo; });
    if (!isVideo)
        skipped.insert(node({"unlock", "video"}));
    if (unlock->value() != unlockType::custom)
        skipped.insert(node({"unlock", "custom"}));

    constexpr unsigned allPreviewsRequired = 2;
    if (version() != allPreviewsRequired)
        insertChildren(skipped, node({"preview"}), isMissingFurtherPreview);
    return skipped;
}

bool ThemeResource::checkFiles(std::vector<Problem>& outList) const {
    outList.clear();
    const ResNode* optional = node({"icons", "system", "static", std::string(tables::optionalIcon)});
    const std::set<ResNode*> present = _resTree->collectApplicableNodes(checkDynamicIcons());
    for (ResNode* leaf : _resTree->nodesInOrder()) {
        if (!leaf->isLeaf() || !present.contains(leaf) || (leaf == optional && leaf->value().empty()))
            continue;
        const int code = leaf->validate(leaf->value());
        if (code == returnCode::success)
            continue;
        if (leaf == _amazingNode) {
            for (const std::string& file : _amazingNode->missingFiles())
                outList.push_back({leaf->keyPath(), file, code});
            continue;
        }
        const bool isFile = dynamic_cast<const FileResNode*>(leaf) != nullptr;
        outList.push_back({leaf->keyPath(), isFile ? leaf->path() + leaf->name() : std::string(), code});
    }
    const auto* custom = dynamic_cast<const CustomUnlockNode*>(node({"unlock", "custom"}));
    if (custom && present.contains(node({"unlock", "custom"})) && !custom->package())
        outList.push_back({{"unlock", "custom", "file"}, customUnlockDirectory, returnCode::missingFile});
    return outList.empty();
}

bool ThemeResource::saveTo(const std::string& directory, const Progress& progress) {
    const std::string project = _resTree->path();
    if (directory.empty() || project.empty())
        return false;
    const ResNode* optional = node({"icons", "system", "static", std::string(tables::optionalIcon)});
    const std::set<ResNode*> nodes = _resTree->collectApplicableNodes(checkDynamicIcons());
    _resTree->setPath(directory.ends_with('/') ? directory : directory + "/");
    std::size_t done = 0;
    const bool saved = std::all_of(nodes.begin(), nodes.end(), [&](ResNode* node) {
        if (progress)
            progress(static_cast<double>(done++) / static_cast<double>(nodes.size()));
        return (node == optional && node->value().empty()) || node->save(false);
    });
    _resTree->setPath(project);
    return saved;
}

bool ThemeResource::exportTo(const std::string& packagePath, const Progress& progress) {
    const std::string folder = parentPath(packagePath);
    if (packagePath.empty() || (!folder.empty() && !isFolder(folder)))
        return false;
    const std::string scratch = scratchFolder(_rootDirectory, _name);
    if (!RemoveFolder(scratch) || !saveTo(scratch, partOf(progress, 0, savedShare)))
        return false;

    std::vector<std::string> modules = ListSubfolders(scratch);
    std::erase_if(modules, [](const std::string& name) {
        return std::find(plainFolders.begin(), plainFolders.end(), name) != plainFolders.end();
    });
    if (!parallelFor(
            modules.size(), [&](std::size_t index) { return foldModule(scratch, modules[index]); },
            partOf(progress, savedShare, foldedShare)))
        return false;

    const std::string staging = stagingFolder(_rootDirectory, _name);
    const std::string finished = staging + "package";
    const bool written = RemoveFolder(staging) && CreateFolderPath(staging) &&
                         ZipFolder(scratch, finished, false, partOf(progress, foldedShare, 1)) &&
                         placePackage(finished, packagePath);
    static_cast<void>(RemoveFolder(staging));
    return written;
}

} // namespace zdt
