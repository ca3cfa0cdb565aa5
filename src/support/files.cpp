#include "support/files.h"

#include "support/atomicFile.h"
#include "support/plainFile.h"
#include "support/text.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <utility>

namespace zdt {

namespace fs = std::filesystem;

namespace {

constexpr mode_t newFolderMode = 0777;

std::string withoutTrailingSlash(std::string path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

std::vector<std::string> listNames(const std::string& path, bool folders) {
    std::vector<std::string> names;
    for (FolderEntry& entry : listEntries(path).value_or(std::vector<FolderEntry>())) {
        if (entry.isFolder == folders)
            names.push_back(std::move(entry.name));
    }
    return names;
}

} // namespace

void normalisePath(std::string& path) {
    std::replace(path.begin(), path.end(), '\\', '/');
}

bool pathExists(const std::string& path) {
    return ::access(path.c_str(), F_OK) == 0;
}

bool isTaken(const std::string& path) {
    struct stat status {};
    return ::lstat(withoutTrailingSlash(path).c_str(), &status) == 0;
}

bool isPlainFile(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool isFolder(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool makePath(const std::string& path) {
    const std::size_t end = path.rfind('/');
    if (end == std::string::npos || isFolder(path.substr(0, end + 1)))
        return true;
    for (std::size_t slash = path.find('/', 1); slash != std::string::npos; slash = path.find('/', slash + 1)) {
        const std::string level = path.substr(0, slash);
        if (::mkdir(level.c_str(), newFolderMode) != 0 && !isFolder(level))
            return false;
    }
    return true;
}

bool makeParent(const std::string& path) {
    return path.find('/') != std::string::npos && makePath(path);
}

bool removeTree(const std::string& path) {
    const std::string folder = withoutTrailingSlash(path);
    std::error_code error;
    const fs::file_status status = fs::symlink_status(folder, error);
    if (!fs::is_directory(status) && !fs::is_symlink(status))
        return true;
    fs::remove_all(folder, error);
    return !error;
}

bool removeFile(const std::string& path) {
    return ::unlink(path.c_str()) == 0;
}

std::optional<std::string> readFile(const std::string& path, std::uint64_t maxBytes) {
    const PlainFile file(path);
    if (!file.isOpen() || file.size() > maxBytes)
        return std::nullopt;
    std::string content(static_cast<std::size_t>(file.size()), '\0');
    return file.read(0, content.data(), content.size()) == content.size() ? std::optional(std::move(content))
                                                                          : std::nullopt;
}

bool copyFile(const std::string& source, const std::string& destination, Flush flush) {
    if (source == destination)
        return pathExists(source);
    if (!isPlainFile(source) || !makePath(destination))
        return false;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> input(std::fopen(source.c_str(), "rbe"), &std::fclose);
    AtomicFile output(destination);
    if (!input || !output.isOpen())
        return false;
    std::array<char, 64 * 1024> block;
    while (const std::size_t length = std::fread(block.data(), 1, block.size(), input.get())) {
        if (std::fwrite(block.data(), 1, length, output.stream()) != length)
            return false;
    }
    return std::ferror(input.get()) == 0 && output.commit(flush);
}

bool linkOrCopyFile(const std::string& source, const std::string& destination) {
    if (!isPlainFile(source))
        return false;
    const auto link = [&] {
        return ::linkat(AT_FDCWD, source.c_str(), AT_FDCWD, destination.c_str(), AT_SYMLINK_FOLLOW) == 0;
    };
    return link() || (makePath(destination) && (link() || copyFile(source, destination)));
}

bool copyTree(std::string source, std::string destination) {
    if (source.empty() || destination.empty())
        return false;
    if (!source.ends_with('/'))
        source += '/';
    if (!destination.ends_with('/'))
        destination += '/';
    for (const std::string& name : listFiles(source)) {
        if (!copyFile(source + name, destination + name))
            return false;
    }
    for (const std::string& name : listDirectories(source)) {
        if (!copyTree(source + name, destination + name))
            return false;
    }
    return true;
}

std::string fileName(std::string path) {
    normalisePath(path);
    return path.substr(path.rfind('/') + 1);
}

std::string stem(const std::string& path) {
    const std::string name = fileName(path);
    return name.substr(0, name.rfind('.'));
}

std::string extension(const std::string& path) {
    const std::size_t dot = path.rfind('.');
    return dot == std::string::npos ? std::string() : path.substr(dot);
}

std::string parentPath(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

bool isPrintableName(const std::string& path) {
    return isPrintable(fileName(path));
}

std::optional<std::vector<FolderEntry>> listEntries(const std::string& path) {
    std::vector<FolderEntry> entries;
    std::error_code error;
    fs::directory_iterator entry(path, error);
    for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
        std::error_code entryError;
        const bool isFolder = fs::is_directory(entry->symlink_status(entryError));
        if (isFolder || entry->is_regular_file(entryError))
            entries.push_back({entry->path().filename().string(), isFolder});
    }
    if (error)
        return std::nullopt;
    return entries;
}

std::vector<std::string> listDirectories(const std::string& path) {
    return listNames(path, true);
}

std::vector<std::string> listFiles(const std::string& path) {
    return listNames(path, false);
}

std::uint64_t fileSize(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && status.st_size > 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

std::uint64_t treeSize(const std::string& path) {
    if (!isFolder(path))
        return fileSize(path);
    std::uint64_t total = 0;
    std::error_code error;
    fs::recursive_directory_iterator entry(path, error);
    for (const fs::recursive_directory_iterator end; !error && entry != end; entry.increment(error)) {
        std::error_code entryError;
        if (fs::is_regular_file(entry->symlink_status(entryError)))
            total += fileSize(entry->path().string());
    }
    return total;
}

bool isInside(const std::string& path, const std::string& folder) {
    std::error_code error;
    const fs::path inner = fs::weakly_canonical(fs::absolute(path, error), error);
    const fs::path outer = fs::weakly_canonical(fs::absolute(withoutTrailingSlash(folder), error), error);
    return std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first == outer.end();
}

void touchFolder(const std::string& path) {
    static_cast<void>(::utimensat(AT_FDCWD, path.c_str(), nullptr, 0));
}

std::string programDirectory() {
    std::error_code error;
    return parentPath(fs::read_symlink("/proc/self/exe", error).string()) + "/";
}

} // namespace zdt
