#include "support/plainFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zdt {

PlainFile::PlainFile(const std::string& path)
    : _descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) { // A pipe would wait for its writer.
    struct stat status {};
    if (_descriptor < 0)
        return;
    if (::fstat(_descriptor, &status) == 0 && S_ISREG(status.st_mode)) {
        _size = static_cast<std::uint64_t>(status.st_size);
        return;
    }
    ::close(_descriptor);
    _descriptor = -1;
}

PlainFile::~PlainFile() {
    if (_descriptor >= 0)
        ::close(_descriptor);
}

std::size_t PlainFile::read(std::uint64_t offset, void* bytes, std::size_t count) const {
    const ssize_t length = isOpen() ? ::pread(_descriptor, bytes, count, static_cast<off_t>(offset)) : 0;
    return length > 0 ? static_cast<std::size_t>(length) : 0;
}

} // namespace zdt
