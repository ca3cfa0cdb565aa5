#pragma once

#include <string>
#include <string_view>

/// Where a theme's files lie under a store root. A store root is a folder path that ends in "/".
namespace zdt {

/// A store root as it was given, with a trailing "/"; "./" for an empty one.
[[nodiscard]] std::string storeRoot(const std::string& given);

/// Whether a text may name a theme: not empty, neither "." nor "..", no "/", "\" or control character, UTF-8, and short
/// enough for the names of its settings and staging folders. No other name can reach a folder that isn't a theme's.
[[nodiscard]] bool isThemeName(std::string_view name);

/// `root/res/`, where the themes lie, and a theme's directory in it.
[[nodiscard]] std::string themesFolder(const std::string& root);
[[nodiscard]] std::string themeFolder(const std::string& root, const std::string& name);

/// `root/tmp/`, where packages and new themes are made.
[[nodiscard]] std::string workFolder(const std::string& root);

/// `root/tmp/name/`, the scratch folder of an export.
[[nodiscard]] std::string scratchFolder(const std::string& root, const std::string& name);

/// `root/tmp/name.part/`, where a theme is made before it takes its place.
[[nodiscard]] std::string stagingFolder(const std::string& root, const std::string& name);

/// Whether a path lies among the themes, their settings or the work of the store, where a package would pass for one of
/// their files or be swept away.
[[nodiscard]] bool isStorePath(const std::string& root, const std::string& path);

/// `root/config/`, and a theme's settings file in it.
[[nodiscard]] std::string settingsFolder(const std::string& root);
[[nodiscard]] std::string settingsFile(const std::string& root, const std::string& name);

} // namespace zdt
