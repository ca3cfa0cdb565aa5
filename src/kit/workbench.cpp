#include "kit/workbench.h"

#include <utility>

namespace zdt {

Workbench::Workbench(SkinLoader layouts, std::string root)
    : _layouts(std::move(layouts))
    , _root(std::move(root)) {}

Workbench::~Workbench() = default;

void Workbench::takeTheme(std::unique_ptr<ThemeResource> theme) {
    ++_themeSerial;
    _theme.reset();
    _theme = std::move(theme);
}

} // namespace zdt
