#include "editor/keyCell.h"

#include "kit/checker.h"
#include "kit/fonts.h"
#include "kit/icons.h"
#include "kit/swatch.h"
#include "kit/tokens.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <array>

namespace zdt {

namespace {

constexpr int columnGap = 8;
constexpr int badgeWidth = 29;
constexpr int badgeHeight = 20;
constexpr int badgeGap = 4;
constexpr int generationsWidth = 128;
constexpr int badgesWidth = 3 * badgeWidth + 2 * badgeGap;
constexpr int leastKey = 205;
constexpr int leastValue = 184;
constexpr int leastApplies = 120;
constexpr int ordinaryApplies = 220;
constexpr int mostKeySpare = 260;
constexpr int mostValueSpare = 120;
constexpr int detailEnd = 94; ///< From the value's left to where an opacity ends.
constexpr int dotRadius = 3;

struct GenerationBadge {
    TypeMask bit;
    const char* words;
    QColor back;
    QColor text;
};

constexpr std::array<GenerationBadge, 3> badges{{
    {typeMask::generation5, "5.0", QColor(0xE4, 0xF4, 0xEA), QColor(0x15, 0x7A, 0x3C)},
    {typeMask::generation8, "8.0", QColor(0xEF, 0xEA, 0xFC), QColor(0x56, 0x36, 0xB8)},
    {typeMask::generation9, "9.1", QColor(0xE5, 0xF2, 0xFF), QColor(0x00, 0x64, 0xCC)},
}};
constexpr QColor absentBack(0xF7, 0xF7, 0xF7);
constexpr QColor absentText(0xB9, 0xB9, 0xB9);

void drawLine(QPainter& painter, const QRect& place, const QFont& font, const QColor& colour, const QString& text) {
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
}

} // namespace

KeyColumns keyColumns(int width) {
    KeyColumns columns;
    const int flexible = width - columns.key - leastValue - 2 * columnGap;
    const bool isNarrow = flexible < leastKey + generationsWidth + leastApplies;
    // Of what is left over, a third goes to long keys and less to values, but the last column doesn't starve.
    const int spare = std::max(0, flexible - leastKey - generationsWidth - ordinaryApplies);
    columns.keyWidth = isNarrow ? std::max(0, flexible - badgesWidth) : leastKey + std::min(spare / 3, mostKeySpare);
    columns.value = columns.key + columns.keyWidth + columnGap;
    columns.valueWidth = leastValue - columnGap + (isNarrow ? 0 : std::min(spare / 6, mostValueSpare));
    columns.generations = columns.value + columns.valueWidth + columnGap / 2;
    columns.applies = columns.generations + (isNarrow ? badgesWidth : generationsWidth);
    columns.appliesWidth = isNarrow ? 0 : width - columns.applies - 2 * columnGap;
    return columns;
}

KeyCell::KeyCell(QWidget* parent)
    : QWidget(parent) {}

void KeyCell::setContent(const KeyCellContent& content) {
    _content = content;
    update();
}

void KeyCell::setState(const CellState& state) {
    if (state == _state)
        return;
    _state = state;
    update();
}

KeyCell::Part KeyCell::partAt(const QPoint& position) const {
    const KeyColumns columns = keyColumns(width());
    if (position.x() >= columns.swatch - 4 && position.x() < columns.swatch + swatchSide + 4)
        return Part::swatch;
    return position.x() >= columns.value && position.x() < columns.generations ? Part::value : Part::none;
}

void KeyCell::mousePressEvent(QMouseEvent* event) {
    const Part part = event->button() == Qt::LeftButton ? partAt(event->position().toPoint()) : Part::none;
    // The first click on a row chooses it; one on its value only then edits.
    _pressed = part == Part::value && !_state.current ? Part::none : part;
    event->ignore();
}

void KeyCell::mouseReleaseEvent(QMouseEvent* event) {
    const Part pressed = std::exchange(_pressed, Part::none);
    event->ignore();
    if (pressed == Part::none || partAt(event->position().toPoint()) != pressed)
        return;
    if (pressed == Part::swatch)
        emit swatchClicked();
    else
        emit valueClicked();
}

void KeyCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const KeyColumns columns = keyColumns(width());
    if (_content.changed) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(token::accent);
        painter.drawEllipse(QPointF(columns.dot, keyRowHeight / 2.0), dotRadius, dotRadius);
    }
    paintSign(painter);
    QFont nameFont = monoFont(token::textSmall);
    nameFont.setWeight(_state.current ? QFont::DemiBold : QFont::Normal);
    drawLine(painter, {columns.key, 0, columns.keyWidth, keyRowHeight}, nameFont, token::text, _content.name);
    paintValue(painter, columns);
    paintGenerations(painter, columns.generations);
    if (columns.appliesWidth > 0)
        drawLine(painter, {columns.applies, 0, columns.appliesWidth, keyRowHeight}, textFont(token::textSmall),
                 token::textLabel, _content.appliesTo);
}

void KeyCell::paintSign(QPainter& painter) const {
    const QRectF place(KeyColumns().swatch, (keyRowHeight - swatchSide) / 2.0, swatchSide, swatchSide);
    if (_content.colour) {
        paintSwatch(painter, place, *_content.colour, token::radiusField);
        return;
    }
    if (_content.thumbnail.isNull()) {
        const QRectF small = place.adjusted(2, 2, -2, -2);
        paintIcon(painter, small, _content.icon, token::iconEmpty);
        return;
    }
    paintChecker(painter, place);
    const QSizeF size = _content.thumbnail.deviceIndependentSize();
    const QRectF centred(place.center() - QPointF(size.width() / 2, size.height() / 2), size);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(centred, _content.thumbnail);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(token::hairline);
    painter.drawRect(place.adjusted(-.5, -.5, .5, .5));
}

void KeyCell::paintValue(QPainter& painter, const KeyColumns& columns) const {
    QRect place(columns.value, 0, columns.valueWidth, keyRowHeight);
    if (!_content.colour) {
        const bool mono = !_content.isMuted;
        drawLine(painter, place, mono ? monoFont(token::textSmall) : textFont(token::textSmall),
                 mono ? token::text : token::textSecond, _content.value);
        return;
    }
    const QFont font = monoFont(token::textSmall);
    drawLine(painter, place, font, token::placeholder, "#");
    place.adjust(painter.fontMetrics().horizontalAdvance('#'), 0, 0, 0);
    drawLine(painter, place, font, token::text, _content.value.mid(1));
    painter.setPen(token::textSecond);
    painter.drawText(QRect(columns.value, 0, detailEnd, keyRowHeight), Qt::AlignRight | Qt::AlignVCenter,
                     _content.detail);
}

void KeyCell::paintGenerations(QPainter& painter, int left) const {
    painter.setFont(textFont(token::textTiny, QFont::DemiBold));
    for (const GenerationBadge& badge : badges) {
        const bool has = (_content.generations & badge.bit) != 0;
        const QRectF place(left, (keyRowHeight - badgeHeight) / 2.0, badgeWidth, badgeHeight);
        painter.setPen(Qt::NoPen);
        painter.setBrush(has ? badge.back : absentBack);
        painter.drawRoundedRect(place, token::radiusField, token::radiusField);
        painter.setPen(has ? badge.text : absentText);
        painter.drawText(place, Qt::AlignCenter, badge.words);
        left += badgeWidth + badgeGap;
    }
}

QString KeyCell::tipAt(const QPoint& position) const {
    const KeyColumns columns = keyColumns(width());
    if (position.x() < columns.swatch)
        return _content.changed ? _changedTip : QString();
    if (position.x() >= columns.key && position.x() < columns.value)
        return _content.name;
    if (position.x() >= columns.value && position.x() < columns.generations)
        return _content.value;
    return columns.appliesWidth > 0 && position.x() >= columns.applies ? _content.appliesTo : QString();
}

bool KeyCell::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), tipAt(help->pos()).toHtmlEscaped(), this);
        return true;
    }
    return QWidget::event(event);
}

} // namespace zdt
