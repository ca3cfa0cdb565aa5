#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What the tests of several rooms need.
namespace zdt::test {

/// A new empty folder, removed at the end with all that it holds.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// The folder's path, ending in "/", or that of something below it.
    [[nodiscard]] std::string path(const std::string& below = {}) const { return _path + below; }

    /// Writes a file below the folder, making its parents, and gives its path.
    std::string write(const std::string& below, std::string_view content) const;

private:
    std::string _path;
};

/// The names of all that a folder holds, hidden things too, sorted.
[[nodiscard]] std::vector<std::string> namesIn(const std::string& folder);

/// The whole content of a file; empty if it can't be read.
[[nodiscard]] std::string readFile(const std::string& path);

/// The first bytes of a PNG of that size, up to the end of its header: enough for whoever reads headers alone.
[[nodiscard]] std::string pngHeader(std::uint32_t width, std::uint32_t height);

/// The first bytes of a JPEG of that size: an application segment and the frame header.
[[nodiscard]] std::string jpegHeader(std::uint16_t width, std::uint16_t height);

} // namespace zdt::test
