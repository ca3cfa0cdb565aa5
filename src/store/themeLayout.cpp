#include "store/themeLayout.h"

#include "support/files.h"
#include "support/text.h"

#include <algorithm>

namespace zdt {

namespace {

/// The file systems take names of 255 bytes, and the longest made from a theme's is its settings file.
constexpr std::size_t maxThemeNameBytes = 200;

bool isForbidden(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return c == '/' || c == '\\' || byte < 0x20 || byte == 0x7f;
}

} // namespace

std::string storeRoot(const std::string& given) {
    if (given.empty())
        return "./";
    return given.ends_with('/') ? given : given + "/";
}

bool isThemeName(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && name.size() <= maxThemeNameBytes && isUtf8(name) &&
           std::none_of(name.begin(), name.end(), isForbidden);
}

std::string themesFolder(const std::string& root) {
    return root + "res/";
}

std::string themeFolder(const std::string& root, const std::string& name) {
    return themesFolder(root) + name + "/";
}

std::string workFolder(const std::string& root) {
    return root + "tmp/";
}

std::string scratchFolder(const std::string& root, const std::string& name) {
    return workFolder(root) + name + "/";
}

std::string stagingFolder(const std::string& root, const std::string& name) {
    return workFolder(root) + name + ".part/";
}

bool isStorePath(const std::string& root, const std::string& path) {
    return isInside(path, themesFolder(root)) || isInside(path, settingsFolder(root)) ||
           isInside(path, workFolder(root));
}

std::string settingsFolder(const std::string& root) {
    return root + "config/";
}

std::string settingsFile(const std::string& root, const std::string& name) {
    return settingsFolder(root) + name + "_config.txt";
}

} // namespace zdt
