#include "common/storeFixture.h"

#include "model/template.h"

#include <unistd.h>

#include <stdexcept>

namespace zdt::test {

std::string ThemeKind::name() const {
    static constexpr std::array<const char*, 3> generations{"five", "eight", "nine"};
    return std::string(generations.at(versionIndex)) + (small ? " small" : " big") + (chinese ? " 中文" : " other");
}

std::vector<ThemeKind> allThemeKinds() {
    std::vector<ThemeKind> kinds;
    for (const unsigned versionIndex : {0U, 1U, 2U}) {
        for (const bool small : {false, true}) {
            for (const bool chinese : {true, false})
                kinds.push_back({versionIndex, small, chinese});
        }
    }
    return kinds;
}

TemporaryStore::TemporaryStore() {
    for (const unsigned index : {0U, 1U, 2U}) {
        std::string name = templateDirectory(index);
        name.pop_back();
        if (::symlink((ZDT_TEMPLATES_DIR + name).c_str(), path(name).c_str()) != 0)
            throw std::runtime_error("no link to the template");
    }
}

std::unique_ptr<ThemeResource> TemporaryStore::create(const std::string& name, const ThemeKind& kind) const {
    auto theme = ThemeResource::createTheme(name, kind.versionIndex, kind.small ? 1 : 0, false, kind.chinese, root());
    if (!theme || !theme->saveSettings())
        throw std::runtime_error("the theme couldn't be made: " + name);
    return theme;
}

std::unique_ptr<ThemeResource> TemporaryStore::open(const std::string& name) const {
    return ThemeResource::openTheme(name, ThemeResource::hasChineseSettings(name, root()), root());
}

std::string TemporaryStore::templateFile(const std::string& file) {
    return ZDT_TEMPLATES_DIR + file;
}

std::vector<std::string> problemsOf(const ThemeResource& theme) {
    std::vector<Problem> problems;
    static_cast<void>(theme.checkFiles(problems));
    std::vector<std::string> lines;
    for (const Problem& problem : problems)
        lines.push_back(problem.key + " (" + std::to_string(problem.code) + ")");
    return lines;
}

} // namespace zdt::test
