#pragma once

#include "common/fixtures.h"
#include "model/typeMask.h"
#include "modules/themeNode.h"

#include <set>
#include <string>
#include <vector>

/// Themes made of the templates that the build drew.
namespace zdt::test {

/// The template of a generation as it stands on disk, ending in "/".
[[nodiscard]] std::string templatePath(unsigned generation);

/// The masks of all kinds of theme of a generation: big and small, Chinese and other.
[[nodiscard]] std::vector<TypeMask> themeKinds(unsigned generation);

/// A tree with the pictures that its kind of theme needs, those of the launcher among them that the store adds.
[[nodiscard]] std::unique_ptr<ThemeNode> makeTree(TypeMask mask, const std::string& directory);

/// The paths of all files below a directory, relative to it.
[[nodiscard]] std::set<std::string> filesBelow(const std::string& directory);

/// A theme directory made of a template as a new theme is: the folders of the designed lock and of the slide lock in
/// one.
class TemplateTheme {
public:
    explicit TemplateTheme(unsigned generation);

    [[nodiscard]] std::string path(const std::string& below = {}) const { return _folder.path(below); }

private:
    TemporaryFolder _folder;
};

} // namespace zdt::test
