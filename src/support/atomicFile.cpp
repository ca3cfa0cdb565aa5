#include "support/atomicFile.h"

#include "support/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>

namespace zdt {

namespace {

constexpr mode_t newFileMode = 0666;

std::string folderOf(const std::string& path) {
    const std::string parent = parentPath(path);
    return parent.empty() ? (path.starts_with('/') ? "/" : ".") : parent;
}

/// A short name of its own, so that a target name of the greatest length still works.
std::string temporaryNameIn(const std::string& folder) {
    static std::atomic<unsigned> counter{0};
    return folder + "/." + std::to_string(::getpid()) + "-" + std::to_string(counter++) + ".part";
}

} // namespace

AtomicFile::AtomicFile(std::string targetPath)
    : _target(std::move(targetPath)) {
    const std::string folder = folderOf(_target);
    int descriptor = ::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, newFileMode);
    if (descriptor < 0) { // Not every file system knows files without a name.
        _temporary = temporaryNameIn(folder);
        descriptor = ::open(_temporary.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, newFileMode);
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
    close();
    if (!_temporary.empty())
        ::unlink(_temporary.c_str());
}

void AtomicFile::close() {
    if (_stream)
        std::fclose(_stream);
    _stream = nullptr;
}

bool AtomicFile::finishWriting(Flush flush) {
    if (std::fflush(_stream) != 0 || std::ferror(_stream) != 0)
        return false;
    return flush == Flush::no || ::fsync(::fileno(_stream)) == 0;
}

bool AtomicFile::giveName() {
    if (!_temporary.empty())
        return true;
    const std::string handle = "/proc/self/fd/" + std::to_string(::fileno(_stream));
    const std::string name = temporaryNameIn(folderOf(_target));
    if (::linkat(AT_FDCWD, handle.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) != 0)
        return false;
    _temporary = name;
    return true;
}

bool AtomicFile::commit(Flush flush) {
    if (!_stream || !finishWriting(flush) || !giveName())
        return false;
    close();
    if (::rename(_temporary.c_str(), _target.c_str()) != 0)
        return false;
    _temporary.clear();
    return flush == Flush::no || flushToDisk(folderOf(_target));
}

bool writeFile(const std::string& path, std::string_view content, Flush flush) {
    AtomicFile file(path);
    if (!file.isOpen())
        return false;
    std::fwrite(content.data(), 1, content.size(), file.stream()); // commit() looks at the stream's error mark
    return file.commit(flush);
}

bool flushToDisk(const std::string& path) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool flushed = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return flushed;
}

} // namespace zdt
