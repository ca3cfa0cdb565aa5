#pragma once

#include <string>

namespace zdt {

/// Whether two files hold the same; their sizes are looked at first. An empty path is a file that isn't there.
[[nodiscard]] bool sameFiles(const std::string& one, const std::string& other);

/// A file as it stands: its path, the time of its last change and its size. Empty for none.
[[nodiscard]] std::string fileStamp(const std::string& file);

} // namespace zdt
