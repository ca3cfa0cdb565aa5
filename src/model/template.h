#pragma once

#include <string>

/// The templates: complete theme directories, one for each generation, from which a new theme is made and to which a
/// file is put back.
namespace zdt {

/// The directory name of a generation's template, ending in "/"; empty for an index above 2.
[[nodiscard]] std::string templateDirectory(unsigned generationIndex);

/// The path of a generation's template as it stands on disk: under the store root, else in the program folder; under
/// the store root, too, where neither holds it. Empty for an index above 2.
[[nodiscard]] std::string locateTemplate(const std::string& storeRoot, unsigned generationIndex);

/// A theme's place in its template. Two directories of a template land in one of a theme: "unlock/..." is looked for
/// in "unlock_amazing/..." and "unlock_slide/...".
/// @param templatePath a result of `locateTemplate`
/// @param file the file's path in a theme
[[nodiscard]] std::string templateFile(const std::string& templatePath, const std::string& file);

/// The store root of a theme directory, which lies two levels above it: "root/res/name/" gives "root/"; "./" for an
/// empty path.
[[nodiscard]] std::string storeRootOf(const std::string& themeDirectory);

} // namespace zdt
