#include "modules/iconsNode.h"
#include "packaging/zipFolder.h"
#include "store/storeLock.h"
#include "store/themeLayout.h"
#include "store/themeResource.h"
#include "support/files.h"

#include <algorithm>
#include <string_view>
#include <vector>

/// The import of a package. It is unpacked and verified aside, and takes its place at the end.
namespace zdt {

namespace {

constexpr const char* nestedSuffix = ".zip";

ImportFailure failureOf(ArchiveVerdict verdict) {
    switch (verdict) {
    case ArchiveVerdict::good:
        return ImportFailure::none;
    case ArchiveVerdict::unreadable:
        return ImportFailure::notAPackage;
    case ArchiveVerdict::unsafe:
        return ImportFailure::unsafe;
    case ArchiveVerdict::tooLarge:
        return ImportFailure::tooLarge;
    }
    return ImportFailure::notAPackage;
}

bool unpackWhole(const std::string& archive, const std::string& folder) {
    return unpackInspected(archive, folder) && holdsAllOf(folder, archive);
}

/// The nested archives directly in an unpacked package, each renamed to end in ".zip".
ImportFailure setNestedAside(const std::string& folder, UnpackBudget& budget, std::vector<std::string>& archives) {
    for (const std::string& name : listFiles(folder)) {
        if (extension(name) == ".xml")
            continue;
        const std::string archive = folder + name + nestedSuffix;
        if (pathExists(archive) || !moveIntoPlace(folder + name, archive, Flush::no))
            return ImportFailure::incomplete;
        if (const ArchiveVerdict verdict = inspectArchive(archive, budget); verdict != ArchiveVerdict::good)
            return failureOf(verdict);
        archives.push_back(archive);
    }
    return ImportFailure::none;
}

bool unpackNested(const std::string& archive) {
    const std::string folder = archive.substr(0, archive.size() - std::string_view(nestedSuffix).size()) + "/";
    return CreateFolderPath(folder) && unpackWhole(archive, folder) && RemoveFileAt(archive);
}

ImportFailure unpackPackage(const std::string& package, const std::string& folder, const Progress& progress) {
    UnpackBudget budget;
    if (const ArchiveVerdict verdict = inspectArchive(package, budget); verdict != ArchiveVerdict::good)
        return failureOf(verdict);
    if (!RemoveFolder(folder) || !CreateFolderPath(folder) || !unpackWhole(package, folder))
        return ImportFailure::incomplete;
    if (!isPlainFile(folder + std::string(descriptionFile)))
        return ImportFailure::notAPackage;
    std::vector<std::string> archives;
    if (const ImportFailure failure = setNestedAside(folder, budget, archives); failure != ImportFailure::none)
        return failure;
    const bool unpacked = parallelFor(
        archives.size(), [&](std::size_t index) { return unpackNested(archives[index]); }, progress);
    return unpacked ? ImportFailure::none : ImportFailure::incomplete;
}

bool writeImportedSettings(const std::string& root, const std::string& name) {
    KeyValues settings;
    for (const std::string_view package : dynamicIconPackages) {
        const std::string directory =
            themeFolder(root, name) + std::string(dynamicIconsDirectory) + std::string(package);
        settings[std::string(package)] = isFolder(directory) ? "true" : "false";
    }
    const std::string file = settingsFile(root, name);
    return makePath(file) && writeKeyValueFile(file, settings, Flush::toDisk);
}

/// Puts the unpacked theme in its place. One that stands there comes to stand where the new one was, and goes back if
/// the settings can't be written.
bool takePlace(const std::string& fresh, const std::string& root, const std::string& name) {
    const std::string place = parentPath(themeFolder(root, name));
    const std::vector<std::string> folders = listDirectories(themesFolder(root));
    const bool stood = std::find(folders.begin(), folders.end(), name) != folders.end();
    if (!stood && isTaken(place)) // A file or a link is no theme, and not ours to replace.
        return false;
    const auto change = [&](const std::string& from, const std::string& to) {
        return stood ? exchangePlaces(from, to) : moveIntoPlace(from, to, Flush::no);
    };
    if (!makePath(place) || !change(fresh, place))
        return false;
    if (writeImportedSettings(root, name))
        return true;
    static_cast<void>(change(place, fresh));
    return false;
}

ImportFailure importPackage(const std::string& package, const std::string& name, const std::string& root,
                            const Progress& progress) {
    const std::string fresh = stagingFolder(root, name) + "fresh";
    const ImportFailure failure = unpackPackage(package, fresh + "/", progress);
    if (failure != ImportFailure::none)
        return failure;
    if (!flushFileSystem(fresh) || !takePlace(fresh, root, name))
        return ImportFailure::incomplete;
    // The theme is in its place, whether that can be flushed or not.
    static_cast<void>(flushToDisk(themesFolder(root)));
    return ImportFailure::none;
}

} // namespace

bool ThemeResource::importTheme(const std::string& packagePath, std::string& outName, const std::string& root,
                                ImportFailure* failure, const Progress& progress) {
    std::string path = packagePath;
    normalisePath(path);
    outName = stem(path);
    const std::string rootDirectory = storeRoot(root);
    ImportFailure result = ImportFailure::none;
    if (path.empty() || !pathExists(path)) {
        result = ImportFailure::missing;
    } else if (!isThemeName(outName)) {
        result = ImportFailure::badName;
    } else {
        const WorkLock lock(rootDirectory);
        result = lock.isHeld() ? importPackage(path, outName, rootDirectory, progress) : ImportFailure::incomplete;
        static_cast<void>(RemoveFolder(stagingFolder(rootDirectory, outName)));
    }
    if (failure)
        *failure = result;
    return result == ImportFailure::none;
}

} // namespace zdt
