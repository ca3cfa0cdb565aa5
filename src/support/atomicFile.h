#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace zdt {

/// Whether a finished file must also survive a power cut. Packages, settings and imports ask for it; an edit needn't.
enum class Flush { no, toDisk };

/// A file that is written whole or not at all. It is written beside its target, where the file system allows it
/// without a name, so that a killed process leaves nothing behind; `commit` puts it over the target in one step.
/// Until then, and after a failure, the target is what it was. A temporary name ends in ".part".
class AtomicFile {
public:
    /// Opens a temporary file in the target's folder, which must exist.
    explicit AtomicFile(std::string targetPath);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    [[nodiscard]] bool isOpen() const { return _stream != nullptr; }

    /// The open stream to write to; null when opening failed. It stays this object's own.
    [[nodiscard]] std::FILE* stream() const { return _stream; }

    /// Puts what was written in the target's place. False when anything could not be written, and then the target is
    /// as before. To be called once.
    [[nodiscard]] bool commit(Flush flush = Flush::no);

private:
    [[nodiscard]] bool giveName();
    [[nodiscard]] bool close();

    std::string _target;
    std::string _temporary; ///< Empty while the file has no name.
    std::FILE* _stream = nullptr;
};

/// Writes `content` to `path` whole or not at all; the folder must exist.
[[nodiscard]] bool writeFile(const std::string& path, std::string_view content, Flush flush = Flush::no);

/// Puts a finished file over another on the same file system, in one step.
[[nodiscard]] bool moveIntoPlace(const std::string& finished, const std::string& target, Flush flush);

/// Lets two files or folders on the same file system change places, in one step where the file system can.
[[nodiscard]] bool exchangePlaces(const std::string& first, const std::string& second);

/// Flushes all that was written to the file system of a path to disk, at once: what a tree of many files asks for.
[[nodiscard]] bool flushFileSystem(const std::string& path);

/// Flushes a finished file or a folder's entries to disk.
[[nodiscard]] bool flushToDisk(const std::string& path);

} // namespace zdt
