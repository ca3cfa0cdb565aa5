#include "lockscreen/amazingUnlockNode.h"
#include "lockscreen/customUnlockNode.h"
#include "lockscreen/unlockConfigNode.h"
#include "lockscreen/unlockNode.h"
#include "model/configResNode.h"
#include "model/fileResNode.h"
#include "modules/iconsNode.h"
#include "modules/previewNode.h"
#include "modules/tables/icons.h"
#include "modules/themeNode.h"
#include "packaging/zipFolder.h"
#include "store/keyText.h"
#include "store/storeLock.h"
#include "store/themeLayout.h"
#include "store/themeResource.h"
#include "support/files.h"
#include "support/pattern.h"

#include <algorithm>
#include <array>
#include <map>
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
    const std::string name = path.substr(0, path.size() - 1);
    const std::optional<std::vector<FolderEntry>> entries = listEntries(path);
    if (entries && entries->empty())
        return RemoveFolder(path);
    return ZipFolder(path, name + ".zip", false) && RemoveFolder(path) && moveIntoPlace(name + ".zip", name, Flush::no);
}

/// The largest first, so that no core is left with one at the end.
void sortBySize(std::vector<std::string>& folders, const std::string& parent) {
    std::map<std::string, std::uint64_t> sizes;
    for (const std::string& folder : folders)
        sizes[folder] = treeSize(parent + folder);
    std::sort(folders.begin(), folders.end(),
              [&](const std::string& a, const std::string& b) { return sizes[a] > sizes[b]; });
}

/// Puts a finished package in its place, which may lie on another file system. The folder there never holds half of
/// one.
bool placePackage(const std::string& finished, const std::string& packagePath) {
    return moveIntoPlace(finished, packagePath, Flush::toDisk) || copyFile(finished, packagePath, Flush::toDisk);
}

/// Lets a tree stand in another directory for as long as it lives.
class MovedRoot {
public:
    MovedRoot(ResNode& root, std::string directory)
        : _root(root)
        , _directory(root.path()) {
        root.setPath(std::move(directory));
    }
    ~MovedRoot() { _root.setPath(std::move(_directory)); }
    MovedRoot(const MovedRoot&) = delete;
    MovedRoot& operator=(const MovedRoot&) = delete;

private:
    ResNode& _root;
    std::string _directory;
};

void insertChildren(std::set<ResNode*>& nodes, const ResNode* parent, const auto& isMeant) {
    for (ResNode* child = parent ? parent->firstChild() : nullptr; child; child = child->next()) {
        if (isMeant(*child))
            nodes.insert(child);
    }
}

/// Whether a leaf is the description's version, and its first sign tells another generation than the theme's: a package
/// would come back as another theme.
bool isForeignVersion(const ResNode& leaf) {
    const unsigned generation = generationIndex(leaf.rootTypeMask());
    return leaf.keyPath() == KeyPath{"version"} && generation != unknownGeneration &&
           generationOfVersion(leaf.value()) != generation;
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
            return !hasDynamicIcon(DynamicIcon::calendar);
        return !hasDynamicIcon(icon.name() == tables::clockBackground ? DynamicIcon::clock : DynamicIcon::weather);
    });

    const ResNode* unlock = node({"unlock"});
    const bool isVideo = unlock->value() == unlockType::video;
    insertChildren(skipped, node({"wallpaper"}),
                   [&](const ResNode& kind) { return (kind.name() == "image") == isVideo; });
    if (!isVideo)
        skipped.insert(node({"unlock", "video"}));
    if (unlock->value() != unlockType::custom)
        skipped.insert(node({"unlock", "custom"}));

    if (version() != generation9Index) // From there on all previews are required.
        insertChildren(skipped, node({"preview"}), isMissingFurtherPreview);
    return skipped;
}

std::vector<ResNode*> ThemeResource::presentNodes() const {
    const std::set<ResNode*> present = _resTree->collectApplicableNodes(checkDynamicIcons());
    const std::array<const ResNode*, 2> optional{node({"icons", "system", "static", std::string(tables::optionalIcon)}),
                                                 node({"unlock", "custom", "file", customPropertiesName})};
    std::vector<ResNode*> nodes = _resTree->nodesInOrder();
    std::erase_if(nodes, [&](const ResNode* each) {
        const bool isOptional = std::find(optional.begin(), optional.end(), each) != optional.end();
        return !present.contains(const_cast<ResNode*>(each)) || (isOptional && each->value().empty());
    });
    return nodes;
}

void ThemeResource::addProblemsOf(ResNode& each, std::vector<Problem>& problems) const {
    if (const auto* block = dynamic_cast<const ConfigResNode*>(&each); block && block->isDamaged())
        problems.push_back({keyTextOf(each), each.path() + "theme.xml", returnCode::damagedFile});
    if (const auto* unlock = dynamic_cast<const UnlockNode*>(&each); unlock && unlock->isDamaged())
        problems.push_back({keyTextOf(each), "unlock/theme.xml", returnCode::damagedFile});
    if (const auto* custom = dynamic_cast<const CustomUnlockNode*>(&each); custom && !custom->package())
        problems.push_back({keyTextOf(each) + "/file", each.path(), returnCode::missingFile});
    if (!each.isLeaf())
        return;
    const auto* file = dynamic_cast<const FileResNode*>(&each);
    // A file that stands in its place and was refused there tells more than a missing value.
    const bool stands = file && each.value().empty() && pathExists(file->targetPath());
    int code = each.validate(stands ? file->targetPath() : each.value());
    if (code == returnCode::success && isForeignVersion(each) && !_resTree->isDescriptionDamaged())
        code = returnCode::foreignVersion;
    if (code == returnCode::success)
        return;
    if (&each == _amazingNode) {
        // A missing video is listed where it belongs.
        if (node({"unlock"})->value() == unlockType::video)
            return;
        for (const auto& [path, missingCode] : _amazingNode->missingFiles())
            problems.push_back({keyTextOf(each), path, missingCode});
        return;
    }
    problems.push_back({keyTextOf(each), file ? each.path() + each.name() : std::string(), code});
}

bool ThemeResource::checkFiles(std::vector<Problem>& outList) const {
    outList.clear();
    if (_resTree->isDescriptionDamaged())
        outList.push_back({"", std::string(descriptionFile), returnCode::damagedFile});
    for (ResNode* each : presentNodes())
        addProblemsOf(*each, outList);
    return outList.empty();
}

bool ThemeResource::saveTo(const std::string& directory, const Progress& progress) {
    const std::string project = _resTree->path();
    if (directory.empty() || project.empty())
        return false;
    const std::vector<ResNode*> nodes = presentNodes();
    const MovedRoot moved(*_resTree, directory.ends_with('/') ? directory : directory + "/");
    std::size_t done = 0;
    return std::all_of(nodes.begin(), nodes.end(), [&](ResNode* each) {
        if (progress)
            progress(static_cast<double>(done++) / static_cast<double>(nodes.size()));
        return each->save(false);
    });
}

bool ThemeResource::exportTo(const std::string& packagePath, const Progress& progress) {
    const std::string folder = parentPath(packagePath);
    if (packagePath.empty() || (!folder.empty() && !isFolder(folder)) ||
        (pathExists(packagePath) && !isPlainFile(packagePath)))
        return false;
    if (isStorePath(_rootDirectory, packagePath))
        return false;
    const WorkLock lock(_rootDirectory);
    if (!lock.isHeld())
        return false;
    const std::string scratch = scratchFolder(_rootDirectory, _name);
    if (!RemoveFolder(scratch) || !saveTo(scratch, partOf(progress, 0, savedShare)))
        return false;

    std::vector<std::string> modules = ListSubfolders(scratch);
    std::erase_if(modules, [](const std::string& name) {
        return std::find(plainFolders.begin(), plainFolders.end(), name) != plainFolders.end();
    });
    sortBySize(modules, scratch);
    if (!parallelFor(
            modules.size(), [&](std::size_t index) { return foldModule(scratch, modules[index]); },
            partOf(progress, savedShare, foldedShare)))
        return false;

    const std::string staging = stagingFolder(_rootDirectory, _name);
    const std::string finished = staging + "package";
    const bool written = CreateFolderPath(staging) &&
                         ZipFolderOnAllCores(scratch, finished, staging, partOf(progress, foldedShare, 1)) &&
                         placePackage(finished, packagePath);
    static_cast<void>(RemoveFolder(staging));
    return written;
}

} // namespace zdt
