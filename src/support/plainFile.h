#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace zdt {

/// A plain file opened for reading: never a folder, a pipe or a device, on which opening or reading could hang.
class PlainFile {
public:
    explicit PlainFile(const std::string& path);
    ~PlainFile();
    PlainFile(const PlainFile&) = delete;
    PlainFile& operator=(const PlainFile&) = delete;

    [[nodiscard]] bool isOpen() const { return _descriptor >= 0; }

    /// Bytes, as they were when the file was opened; 0 if it isn't open.
    [[nodiscard]] std::uint64_t size() const { return _size; }

    /// How many of `count` bytes could be read at `offset`, which may lie behind the end.
    [[nodiscard]] std::size_t read(std::uint64_t offset, void* bytes, std::size_t count) const;

    /// For libraries that read by themselves; -1 if the file isn't open. It stays this object's own.
    [[nodiscard]] int descriptor() const { return _descriptor; }

private:
    int _descriptor;
    std::uint64_t _size = 0;
};

} // namespace zdt
