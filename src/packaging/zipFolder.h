#pragma once

#include "packaging/unpackGuard.h"
#include "support/parallel.h"

#include <cstdint>
#include <string>
#include <vector>

struct zip;

/// Archives over libzip, and the folder operations that packaging needs. Nothing here keeps state; every function opens
/// what it needs and closes it before it returns, so that calls on different paths may run side by side. A folder path
/// ends in "/". Results are plain truths; the caller chooses the words.
namespace zdt {

/// Writes what a folder holds into an archive, in place of one that stood there. The archive is written when all was
/// found and added, so that a failure leaves what was there.
///
/// With `keepRoot` the names begin with the folder's own and every folder has an entry; without it the folder's
/// contents stand at the archive's root, and only the folders in it have entries. A folder's entry follows those of its
/// contents. An empty archive leaves no file.
[[nodiscard]] bool ZipFolder(const std::string& folderPath, const std::string& archivePath, bool keepRoot,
                             const Progress& progress = {});

/// What `ZipFolder` without `keepRoot` writes, on all cores: the files are packed into a few archives in `workFolder`,
/// side by side, and the entries are then put together as they are. What lies in `workFolder` is the caller's to
/// remove.
[[nodiscard]] bool ZipFolderOnAllCores(const std::string& folderPath, const std::string& archivePath,
                                       const std::string& workFolder, const Progress& progress = {});

/// Adds the files below `baseFolder` + `entryPrefix` to an open archive, under names that begin with the prefix, and at
/// the end an entry for the prefix itself if `addDirEntry` is set.
[[nodiscard]] bool ZipFolderWalk(zip* archive, const std::string& baseFolder, const std::string& entryPrefix,
                                 bool addDirEntry);

/// Writes each file under its bare name into one archive. A file that can't be added makes the result false, and the
/// others are written all the same. True for an empty list, with nothing done.
[[nodiscard]] bool ZipFileList(const std::vector<std::string>& filePaths, const std::string& archivePath);

/// Unpacks an archive that `inspectArchive` finds good. False, with nothing written, for any other; false if a folder
/// can't be made. A file that can't be written is left out silently: `holdsAllOf` tells.
[[nodiscard]] bool UnzipToFolder(const std::string& archivePath, const std::string& destinationFolder);
/// The same for an archive that was inspected before.
[[nodiscard]] bool unpackInspected(const std::string& archivePath, const std::string& destinationFolder);

/// Writes one entry to a file, making its folder. An entry that can't be read whole leaves no file.
void UnzipEntryToFile(zip* archive, std::uint64_t index, const std::string& destinationPath);

/// Whether each entry of an archive stands below a folder, with its size.
[[nodiscard]] bool holdsAllOf(const std::string& folder, const std::string& archivePath);

/// Makes every folder of the path, its last part too.
[[nodiscard]] bool CreateFolderPath(const std::string& folderPath);
/// Copies what a folder holds into another. True for a source that isn't there; false for an empty path.
[[nodiscard]] bool CopyFolder(const std::string& sourceFolder, const std::string& destinationFolder);
/// Removes a folder with all that it holds; true as well if it isn't there.
[[nodiscard]] bool RemoveFolder(const std::string& folderPath);
[[nodiscard]] bool RemoveFileAt(const std::string& filePath);
/// The names of the folders directly in a folder, each with a trailing "/", in the file system's order.
[[nodiscard]] std::vector<std::string> ListSubfolders(const std::string& folderPath);

} // namespace zdt
