#pragma once

#include <string>

namespace zdt {

/// Keeps other processes, and other work of this one, from a folder of the store for as long as it lives: two exports
/// of one theme would otherwise write into the same scratch folder. Waits until the folder is free. Nothing is left
/// behind, also by a killed process.
class StoreLock {
public:
    /// Locks `folder`, making it if need be.
    explicit StoreLock(const std::string& folder);
    ~StoreLock();
    StoreLock(const StoreLock&) = delete;
    StoreLock& operator=(const StoreLock&) = delete;

    /// False if the folder can't be made or opened.
    [[nodiscard]] bool isHeld() const { return _descriptor >= 0; }

private:
    int _descriptor = -1;
};

/// The lock of a store root's work folder. Whoever holds it works there alone, so that the staging folders which killed
/// runs left are removed at once.
class WorkLock : public StoreLock {
public:
    explicit WorkLock(const std::string& root);
};

} // namespace zdt
