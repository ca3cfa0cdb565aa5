#pragma once

#include "common/fixtures.h"
#include "store/themeResource.h"

#include <array>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace zdt::test {

/// A kind of theme that a template can make.
struct ThemeKind {
    unsigned versionIndex = 0;
    bool small = false;
    bool chinese = true;

    [[nodiscard]] std::string name() const;
};

/// All six kinds in both languages.
[[nodiscard]] std::vector<ThemeKind> allThemeKinds();

/// A store root of its own, with links to the templates that the build drew.
class TemporaryStore : public TemporaryFolder {
public:
    TemporaryStore();

    [[nodiscard]] std::string root() const { return path(); }
    /// Makes a theme and writes its settings, as every maker of one does.
    std::unique_ptr<ThemeResource> create(const std::string& name, const ThemeKind& kind = {2}) const;
    [[nodiscard]] std::unique_ptr<ThemeResource> open(const std::string& name) const;
    /// The path of a file in a template, such as "default9.1/icons/...".
    [[nodiscard]] static std::string templateFile(const std::string& file);
};

/// The problems of a theme as "key (code)", for comparison.
[[nodiscard]] std::vector<std::string> problemsOf(const ThemeResource& theme);

} // namespace zdt::test
