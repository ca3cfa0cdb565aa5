#pragma once

#include "kit/cellSource.h"
#include "shell/themeList.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <cstdint>
#include <optional>

class QPushButton;

namespace zdt {

/// One card of the start page. Its two buttons show while the pointer is over it; by keyboard, the view of the cards
/// does what they do. Children: `cardOpen`, `cardMenu`.
class ThemeCardCell : public QWidget {
    Q_OBJECT

public:
    explicit ThemeCardCell(QWidget* parent);

    /// @param cover nothing while it isn't known; null if there is none
    /// @param bytes the theme's size; nothing while it isn't known
    void show(int index, const ThemeCard& card, const std::optional<QImage>& cover, std::optional<std::uint64_t> bytes);
    void showState(const CellState& state);

    [[nodiscard]] int index() const { return _index; }

signals:
    void openRequested(int index);
    void menuRequested(int index, const QPoint& position);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void paintCover(QPainter& painter) const;
    void paintTexts(QPainter& painter) const;
    int paintBadge(QPainter& painter, int left, const QString& text, const QColor& ground, const QColor& colour) const;

    QPushButton* _open;
    QPushButton* _menu;
    ThemeCard _card;
    QPixmap _cover;
    bool _hasNoCover = false;
    std::optional<std::uint64_t> _bytes;
    CellState _state;
    int _index = -1;
};

/// Logical pixels.
inline constexpr int cardCoverHeight = 324;
inline constexpr int cardHeight = 416;
inline constexpr int cardLeastWidth = 172;

} // namespace zdt
