#include "support/atomicFile.h"

#include "support/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <utility>

namespace zdt {

namespace {

constexpr mode_t newFileMode = 0666;

std::string folderOf(const std::string& path) {
    const std::string parent = parentPath(path);
    return parent.empty() ? (path.starts_with('/') ? "/" : ".") : parent;
}

/// A short name of its own, so that a target name of the greatest length still works. It may be taken: a process that
/// was killed leaves one behind, and process ids come again, in containers above all.
std::string temporaryNameIn(const std::string& folder) {
    static std::atomic<unsigned> counter{0};
    return folder + "/." + std::to_string(::getpid()) + "-" + std::to_string(counter++) + ".part";
}

/// A file without a name is given one through /proc, which a bare container may lack.
bool canNameLater() {
    static const bool can = pathExists("/proc/self/fd");
    return can;
}

bool withDescriptor(const std::string& path, int (*flush)(int)) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool flushed = flush(descriptor) == 0;
    ::close(descriptor);
    return flushed;
}

} // namespace

AtomicFile::AtomicFile(std::string targetPath)
    : _target(std::move(targetPath)) {
    const std::string folder = folderOf(_target);
    int descriptor = canNameLater() ? ::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, newFileMode) : -1;
    if (descriptor < 0) { // Not every file system knows files without a name.
        do {
            _temporary = temporaryNameIn(folder);
            descriptor = ::open(_temporary.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, newFileMode);
        } while (descriptor < 0 && errno == EEXIST);
    }
    if (descriptor < 0) {
        _temporary.clear();
        return;
    }
    _stream = ::fdopen(descriptor, "wb");
    if (!_stream)
        ::close(descriptor);
}

AtomicFile::~AtomicFile() {
    static_cast<void>(close());
    if (!_temporary.empty())
        ::unlink(_temporary.c_str());
}

bool AtomicFile::close() {
    std::FILE* stream = std::exchange(_stream, nullptr);
    return stream && std::fclose(stream) == 0;
}

bool AtomicFile::giveName() {
    if (!_temporary.empty())
        return true;
    const std::string handle = "/proc/self/fd/" + std::to_string(::fileno(_stream));
    const std::string folder = folderOf(_target);
    do {
        _temporary = temporaryNameIn(folder);
        if (::linkat(AT_FDCWD, handle.c_str(), AT_FDCWD, _temporary.c_str(), AT_SYMLINK_FOLLOW) == 0)
            return true;
    } while (errno == EEXIST);
    _temporary.clear();
    return false;
}

bool AtomicFile::commit(Flush flush) {
    const bool written = _stream && std::fflush(_stream) == 0 && std::ferror(_stream) == 0 && giveName();
    if (!close() || !written || !moveIntoPlace(_temporary, _target, flush))
        return false;
    _temporary.clear();
    return true;
}

bool writeFile(const std::string& path, std::string_view content, Flush flush) {
    AtomicFile file(path);
    if (!file.isOpen())
        return false;
    std::fwrite(content.data(), 1, content.size(), file.stream()); // commit() looks at the stream's error mark
    return file.commit(flush);
}

bool moveIntoPlace(const std::string& finished, const std::string& target, Flush flush) {
    if (flush == Flush::toDisk && !flushToDisk(finished))
        return false;
    if (::rename(finished.c_str(), target.c_str()) != 0)
        return false;
    if (flush == Flush::toDisk) // The target is in its place now, whether its folder can be flushed or not.
        static_cast<void>(flushToDisk(folderOf(target)));
    return true;
}

bool exchangePlaces(const std::string& first, const std::string& second) {
    if (::renameat2(AT_FDCWD, first.c_str(), AT_FDCWD, second.c_str(), RENAME_EXCHANGE) == 0)
        return true;
    // Not every file system can. What `second` was stays beside its place until both have changed.
    const std::string aside = second + ".part";
    if (!moveIntoPlace(second, aside, Flush::no))
        return false;
    if (moveIntoPlace(first, second, Flush::no))
        return moveIntoPlace(aside, first, Flush::no);
    static_cast<void>(moveIntoPlace(aside, second, Flush::no));
    return false;
}

bool flushFileSystem(const std::string& path) {
    return withDescriptor(path, ::syncfs);
}

bool flushToDisk(const std::string& path) {
    return withDescriptor(path, ::fsync);
}

} // namespace zdt
