#pragma once

#include "kit/controlSearch.h"
#include "kit/notifications.h"
#include "kit/workbench.h"

#include <QWidget>

namespace zdt {

/// A part of the main window that is made of a layout, hears notifications, and shows the open theme.
///
/// Labels that name their text by key follow the language by themselves; `Notify_ReloadDataMsg` comes after them.
class ZPage : public QWidget, public INotifyUI {
    Q_OBJECT

public:
    /// Loads the layout into the page and begins to hear notifications.
    /// @throws LayoutError if the layout can't be loaded
    ZPage(Workbench& bench, const QString& layout, QWidget* parent);
    ~ZPage() override;

    void Notify(const Notification& message) override;

protected:
    /// Reads everything anew from the theme, which may be none, and says it in the language of this moment. Called on
    /// `Notify_ReloadDataMsg`.
    virtual void reload() {}

    [[nodiscard]] Workbench& bench() const { return _bench; }
    [[nodiscard]] ThemeResource* theme() const { return _bench.theme(); }

    /// A control of the layout by its name.
    /// @throws LayoutError if there is none of that class; so to be called while the page is made
    template <typename T>
    [[nodiscard]] T& control(const QString& name) {
        return FindControl<T>(this, name);
    }

private:
    Workbench& _bench;
};

} // namespace zdt
