#pragma once

#include "support/atomicFile.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Paths and files. Paths are UTF-8 with "/" between the parts, and a path that ends in "/" is a folder. Nothing here
/// throws; what fails gives false, zero or an empty result.
namespace zdt {

/// Replaces every "\" by "/", in place.
void normalisePath(std::string& path);

/// Whether the path can be reached; true for files and for folders.
[[nodiscard]] bool pathExists(const std::string& path);

/// Whether anything stands at the path itself, a link that leads nowhere too.
[[nodiscard]] bool isTaken(const std::string& path);

/// Whether the path is a plain file, or a link to one: never a folder, a pipe or a device, on which a read could hang.
[[nodiscard]] bool isPlainFile(const std::string& path);

/// Whether the path is a folder, or a link to one.
[[nodiscard]] bool isFolder(const std::string& path);

/// Makes every folder of the path up to its last "/": a path with no trailing "/" leaves its last part out.
[[nodiscard]] bool makePath(const std::string& path);

/// `makePath` of everything up to the last "/"; false if there is none.
[[nodiscard]] bool makeParent(const std::string& path);

/// Removes a folder with all that it holds. A path that is no folder counts as done. A link is removed as a link,
/// whatever it points to. The first failure ends it.
[[nodiscard]] bool removeTree(const std::string& path);

/// Removes one file.
[[nodiscard]] bool removeFile(const std::string& path);

/// The whole content of a plain file; nothing if it can't be read or holds more than `maxBytes`.
[[nodiscard]] std::optional<std::string> readFile(const std::string& path, std::uint64_t maxBytes);

/// Copies a plain file's bytes, making the target's folder. The target is written whole or not at all. True with no
/// copying when the two paths are equal.
[[nodiscard]] bool copyFile(const std::string& source, const std::string& destination, Flush flush = Flush::no);

/// Makes `destination` the same file as `source` where the file system can, and copies it otherwise. For copies that
/// nothing writes into: files of a theme are only ever replaced.
[[nodiscard]] bool linkOrCopyFile(const std::string& source, const std::string& destination);

/// Copies what a folder holds into another, merging with what stands there. A missing source copies nothing and is no
/// failure. Both must be named.
[[nodiscard]] bool copyTree(std::string source, std::string destination);

/// What follows the last "/"; the whole path if there is none; empty if the path ends in "/".
[[nodiscard]] std::string fileName(std::string path);

/// `fileName` cut at its last ".".
[[nodiscard]] std::string stem(const std::string& path);

/// From the last "." of the path, the dot included; empty if there is none.
[[nodiscard]] std::string extension(const std::string& path);

/// Up to the last "/", without it; empty if there is none.
[[nodiscard]] std::string parentPath(const std::string& path);

/// Whether every byte of the path's file name lies in 32 to 126.
[[nodiscard]] bool isPrintableName(const std::string& path);

/// One thing that a folder holds.
struct FolderEntry {
    std::string name;
    bool isFolder = false; ///< Otherwise it is a plain file.
};

/// The plain files and folders directly in a folder, in the file system's order; nothing if it can't be listed. Links
/// to folders are left out, so that no walk leaves the tree or runs in a circle, and so are pipes and devices.
[[nodiscard]] std::optional<std::vector<FolderEntry>> listEntries(const std::string& path);

/// The names of the folders directly in a folder, without a trailing "/", in the file system's order.
[[nodiscard]] std::vector<std::string> listDirectories(const std::string& path);

/// The names of the plain files directly in a folder, in the file system's order.
[[nodiscard]] std::vector<std::string> listFiles(const std::string& path);

/// The size of one file in bytes; 0 if it can't be read.
[[nodiscard]] std::uint64_t fileSize(const std::string& path);

/// The size in bytes of all files that a folder holds, at any depth; of a file, its own.
[[nodiscard]] std::uint64_t treeSize(const std::string& path);

/// Whether a path lies in a folder, links in it followed. Neither needs to exist.
[[nodiscard]] bool isInside(const std::string& path, const std::string& folder);

/// Notes on a folder that something in it was changed now. Best effort.
void touchFolder(const std::string& path);

/// The folder of the running program, with a trailing "/": both programs stand there with the templates beside them.
[[nodiscard]] std::string programDirectory();

} // namespace zdt
