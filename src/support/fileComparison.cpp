#include "support/fileComparison.h"

#include "support/plainFile.h"

#include <sys/stat.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace zdt {

bool sameFiles(const std::string& one, const std::string& other) {
    if (one == other)
        return true;
    if (one.empty() || other.empty())
        return false;
    const PlainFile first(one);
    const PlainFile second(other);
    if (!first.isOpen() || !second.isOpen() || first.size() != second.size())
        return false;
    constexpr std::size_t chunk = 65536;
    std::vector<char> left(chunk);
    std::vector<char> right(chunk);
    for (std::uint64_t at = 0; at < first.size(); at += chunk) {
        const std::size_t count = first.read(at, left.data(), chunk);
        if (count != second.read(at, right.data(), chunk) || std::memcmp(left.data(), right.data(), count) != 0)
            return false;
    }
    return true;
}

std::string fileStamp(const std::string& file) {
    struct stat status {};
    if (file.empty() || ::stat(file.c_str(), &status) != 0)
        return {};
    return file + '\n' + std::to_string(status.st_mtim.tv_sec) + '.' + std::to_string(status.st_mtim.tv_nsec) + '\n' +
           std::to_string(status.st_size);
}

} // namespace zdt
