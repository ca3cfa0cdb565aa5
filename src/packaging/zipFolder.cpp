#include "packaging/zipFolder.h"

#include "packaging/archive.h"
#include "support/files.h"

#include <array>
#include <cstdio>
#include <memory>
#include <optional>

namespace zdt {

namespace {

constexpr int newArchive = ZIP_CREATE | ZIP_TRUNCATE;

void reportProgress(zip_t* /*archive*/, double done, void* progress) {
    (*static_cast<const Progress*>(progress))(done);
}

/// Splits a folder path into what lies above its last part and the entry prefix of that part.
void splitRoot(const std::string& folderPath, std::string& base, std::string& prefix) {
    std::string path = folderPath;
    if (path.ends_with('/'))
        path.pop_back();
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
        base.clear();
        prefix = path;
    } else {
        base = path.substr(0, slash + 1);
        prefix = path.substr(slash + 1) + "/";
    }
}

/// Copies an entry of `size` bytes; false if there are fewer, more or unreadable ones. An entry that holds more than it
/// says is how a small archive fills a disk.
bool copyEntry(zip_file_t* entry, std::FILE* output, std::uint64_t size) {
    std::array<char, 64 * 1024> block;
    while (true) {
        const zip_int64_t length = zip_fread(entry, block.data(), block.size());
        if (length <= 0)
            return length == 0 && size == 0;
        const auto count = static_cast<std::uint64_t>(length);
        if (count > size || std::fwrite(block.data(), 1, count, output) != count)
            return false;
        size -= count;
    }
}

} // namespace

bool ZipFolder(const std::string& folderPath, const std::string& archivePath, bool keepRoot, const Progress& progress) {
    if (folderPath.empty() || archivePath.empty())
        return false;
    ArchivePointer archive = openArchive(archivePath, newArchive);
    if (!archive)
        return false;
    std::string base = folderPath;
    std::string prefix;
    if (keepRoot)
        splitRoot(folderPath, base, prefix);
    if (!ZipFolderWalk(archive.get(), base, prefix, keepRoot))
        return false;
    if (progress) {
        constexpr double precision = 0.01;
        zip_register_progress_callback_with_state(archive.get(), precision, &reportProgress, nullptr,
                                                  const_cast<Progress*>(&progress));
    }
    return closeArchive(std::move(archive));
}

bool ZipFolderWalk(zip* archive, const std::string& baseFolder, const std::string& entryPrefix, bool addDirEntry) {
    const std::string folder = baseFolder + entryPrefix;
    if (!archive || folder.empty())
        return false;
    const std::optional<std::vector<FolderEntry>> entries = listEntries(folder);
    if (!entries)
        return false;
    for (const FolderEntry& entry : *entries) {
        const bool added = entry.isFolder ? ZipFolderWalk(archive, baseFolder, entryPrefix + entry.name + "/", true)
                                          : addFile(archive, folder + entry.name, entryPrefix + entry.name);
        if (!added)
            return false;
    }
    return !addDirEntry || zip_dir_add(archive, entryPrefix.c_str(), ZIP_FL_ENC_UTF_8) >= 0;
}

bool ZipFileList(const std::vector<std::string>& filePaths, const std::string& archivePath) {
    if (filePaths.empty())
        return true;
    ArchivePointer archive = openArchive(archivePath, newArchive);
    if (!archive)
        return false;
    bool good = true;
    for (const std::string& path : filePaths)
        good = addFile(archive.get(), path, fileName(path)) && good;
    return closeArchive(std::move(archive)) && good;
}

bool UnzipToFolder(const std::string& archivePath, const std::string& destinationFolder) {
    UnpackBudget budget;
    return !archivePath.empty() && inspectArchive(archivePath, budget) == ArchiveVerdict::good &&
           unpackInspected(archivePath, destinationFolder);
}

bool unpackInspected(const std::string& archivePath, const std::string& destinationFolder) {
    ArchivePointer archive = openArchive(archivePath, ZIP_RDONLY);
    if (!archive)
        return false;
    const zip_uint64_t count = entryCount(archive.get());
    for (zip_uint64_t index = 0; index < count; ++index) {
        const char* name = zip_get_name(archive.get(), index, 0);
        if (!name || !*name)
            return false;
        const std::string target = destinationFolder + name;
        if (!target.ends_with('/'))
            UnzipEntryToFile(archive.get(), index, target);
        else if (!CreateFolderPath(target))
            return false;
    }
    return closeArchive(std::move(archive));
}

void UnzipEntryToFile(zip* archive, std::uint64_t index, const std::string& destinationPath) {
    zip_stat_t status;
    const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> entry(zip_fopen_index(archive, index, 0), &zip_fclose);
    if (!entry || zip_stat_index(archive, index, 0, &status) != 0 || !makePath(destinationPath))
        return;
    std::FILE* output = std::fopen(destinationPath.c_str(), "wbe");
    if (!output)
        return;
    const bool copied = copyEntry(entry.get(), output, status.size);
    if (std::fclose(output) != 0 || !copied)
        static_cast<void>(removeFile(destinationPath));
}

bool holdsAllOf(const std::string& folder, const std::string& archivePath) {
    const ArchivePointer archive = openArchive(archivePath, ZIP_RDONLY);
    if (!archive)
        return false;
    const zip_uint64_t count = entryCount(archive.get());
    for (zip_uint64_t index = 0; index < count; ++index) {
        zip_stat_t status;
        if (zip_stat_index(archive.get(), index, 0, &status) != 0)
            return false;
        const std::string path = folder + status.name;
        const bool arrived = path.ends_with('/') ? isFolder(path) : isPlainFile(path) && fileSize(path) == status.size;
        if (!arrived)
            return false;
    }
    return true;
}

bool CreateFolderPath(const std::string& folderPath) {
    return makePath(folderPath.ends_with('/') ? folderPath : folderPath + "/");
}

bool CopyFolder(const std::string& sourceFolder, const std::string& destinationFolder) {
    return copyTree(sourceFolder, destinationFolder);
}

bool RemoveFolder(const std::string& folderPath) {
    return removeTree(folderPath);
}

bool RemoveFileAt(const std::string& filePath) {
    return removeFile(filePath);
}

std::vector<std::string> ListSubfolders(const std::string& folderPath) {
    std::vector<std::string> names = listDirectories(folderPath);
    for (std::string& name : names)
        name += '/';
    return names;
}

} // namespace zdt
