#pragma once

#include "kit/page.h"

#include <QLineEdit>
#include <QRect>

#include <array>
#include <optional>

namespace zdt {

/// The small panel with the place and size of an element, in pixels of the phone's screen. Its edits are
/// `Position_X_Edit`, `Position_Y_Edit`, `Position_W_Edit` and `Position_H_Edit`; each sends `textchanged` when the
/// author changes it, and whoever owns the panel reads them all.
class CPositionFrame : public ZPage {
    Q_OBJECT

public:
    explicit CPositionFrame(Workbench& bench, QWidget* parent = nullptr);

    void Notify(const Notification& message) override;

    /// Shows a place without sending anything; an edit that the author is in keeps its text if it means the same.
    void setPosition(const QRect& place);
    /// Empties all edits.
    void clear();
    /// Nothing while an edit holds no number.
    [[nodiscard]] std::optional<QRect> position() const;

private:
    std::array<QLineEdit*, 4> _edits{}; ///< Left, top, width, height.
};

} // namespace zdt
