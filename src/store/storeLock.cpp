#include "store/storeLock.h"

#include "store/themeLayout.h"
#include "support/files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace zdt {

StoreLock::StoreLock(const std::string& folder) {
    if (!makePath(folder))
        return;
    _descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    while (_descriptor >= 0 && ::flock(_descriptor, LOCK_EX) != 0) {
        if (errno == EINTR)
            continue;
        ::close(_descriptor);
        _descriptor = -1;
    }
}

StoreLock::~StoreLock() {
    if (_descriptor >= 0)
        ::close(_descriptor);
}

WorkLock::WorkLock(const std::string& root)
    : StoreLock(workFolder(root)) {
    if (!isHeld())
        return;
    for (const std::string& name : listDirectories(workFolder(root))) {
        if (name.ends_with(".part"))
            static_cast<void>(removeTree(workFolder(root) + name));
    }
}

} // namespace zdt
