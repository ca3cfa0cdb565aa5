#pragma once

#include "kit/notifications.h"
#include "kit/skinLoader.h"
#include "store/themeResource.h"

#include <cstdint>
#include <memory>
#include <string>

namespace zdt {

/// What every page works with: the notifications, the layouts, and the one open theme. It belongs to the program and
/// outlives every page.
class Workbench {
public:
    /// @param root the store root, with the themes in its res/
    Workbench(SkinLoader layouts, std::string root);
    /// Closes the theme, which writes its settings.
    ~Workbench();
    Workbench(const Workbench&) = delete;
    Workbench& operator=(const Workbench&) = delete;

    [[nodiscard]] CPaintManagerUI& notifications() { return _notifications; }
    [[nodiscard]] SkinLoader& layouts() { return _layouts; }
    [[nodiscard]] const std::string& root() const { return _root; }

    /// The open theme; null if there is none. Pages don't keep the pointer.
    [[nodiscard]] ThemeResource* theme() const { return _theme.get(); }
    /// Puts a theme in the place of the open one. That is closed first: whoever makes a theme calls `closeTheme`
    /// before, so that there is never more than one.
    void takeTheme(std::unique_ptr<ThemeResource> theme);
    void closeTheme() { takeTheme(nullptr); }
    /// Another number for each theme that was taken, and for none: what was begun for a theme tells by it whether that
    /// one is still open. A name doesn't tell, as a theme may be opened again.
    [[nodiscard]] std::uint64_t themeSerial() const { return _themeSerial; }

private:
    CPaintManagerUI _notifications;
    SkinLoader _layouts;
    std::string _root;
    std::unique_ptr<ThemeResource> _theme;
    std::uint64_t _themeSerial = 0;
};

} // namespace zdt
