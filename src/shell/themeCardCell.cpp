#include "shell/themeCardCell.h"

#include "kit/fonts.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/localisation.h"
#include "kit/shadow.h"
#include "kit/tokens.h"
#include "model/typeMask.h"
#include "shell/themeWords.h"

#include <QDateTime>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

#include <array>

namespace zdt {

namespace {

constexpr int padding = 12;
constexpr int buttonMargin = 9;
constexpr int menuSide = 28;
constexpr int badgeTop = cardCoverHeight + 37;
constexpr int badgeHeight = 20;
constexpr int badgePadding = 6;
constexpr int emptyIcon = 40;

struct GenerationBadge {
    const char* text;
    QColor ground;
    QColor colour;
};

constexpr std::array<GenerationBadge, generationCount> generationBadges{
    {{"OVUI 5.0", QColor(0xE4, 0xF4, 0xEA), QColor(0x15, 0x7A, 0x3C)},
     {"OVUI 8.0", QColor(0xEF, 0xEA, 0xFC), QColor(0x56, 0x36, 0xB8)},
     {"OVUI 9.1", QColor(0xE5, 0xF2, 0xFF), QColor(0x00, 0x64, 0xCC)}}};

constexpr QColor plainGround(0xEF, 0xEF, 0xEF);
constexpr QColor plainText(0x55, 0x55, 0x55);

QPainterPath roundedTop(const QRectF& place, double radius) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRoundedRect(place, radius, radius);
    path.addRect(place.adjusted(0, radius, 0, 0));
    return path;
}

} // namespace

ThemeCardCell::ThemeCardCell(QWidget* parent)
    : QWidget(parent)
    , _open(new QPushButton(this))
    , _menu(new QPushButton(this)) {
    _open->setObjectName("cardOpen");
    _open->setProperty("kind", "cardOpen");
    _menu->setObjectName("cardMenu");
    _menu->setProperty("kind", "cardMenu");
    setButtonIcon(_menu, Icon::MoreHoriz);
    for (QPushButton* button : {_open, _menu}) {
        button->setFocusPolicy(Qt::NoFocus);
        button->hide();
    }
    connect(_open, &QPushButton::clicked, this, [this] { emit openRequested(_index); });
    connect(_menu, &QPushButton::clicked, this,
            [this] { emit menuRequested(_index, _menu->mapToGlobal(_menu->rect().bottomLeft())); });
}

void ThemeCardCell::show(int index, const ThemeCard& card, const std::optional<QImage>& cover,
                         std::optional<std::uint64_t> bytes) {
    _index = index;
    _card = card;
    _cover = QPixmap::fromImage(cover.value_or(QImage()));
    _hasNoCover = cover && cover->isNull();
    _bytes = bytes;
    _open->setText(Text("kStart_open"));
    _menu->setToolTip(Text("kStart_menu"));
    _menu->setAccessibleName(Text("kStart_menu"));
    update();
}

void ThemeCardCell::showState(const CellState& state) {
    _state = state;
    _open->setVisible(state.hovered);
    _menu->setVisible(state.hovered);
    update();
}

void ThemeCardCell::resizeEvent(QResizeEvent*) {
    _open->setGeometry(buttonMargin, cardCoverHeight - buttonMargin - 32, width() - 2 * buttonMargin, 32);
    _menu->setGeometry(width() - buttonMargin - menuSide, buttonMargin, menuSide, menuSide);
}

void ThemeCardCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF card = QRectF(rect()).adjusted(.5, .5, -.5, -.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(token::card);
    painter.drawRoundedRect(card, token::radiusCard, token::radiusCard);
    paintCover(painter);
    paintTexts(painter);
    painter.setBrush(Qt::NoBrush);
    const bool marked = _state.hovered || _state.ringed;
    painter.setPen(QPen(marked ? token::accent : token::hairline, 1));
    painter.drawRoundedRect(card, token::radiusCard, token::radiusCard);
}

void ThemeCardCell::paintCover(QPainter& painter) const {
    const QRect place(1, 1, width() - 2, cardCoverHeight);
    painter.save();
    painter.setClipPath(roundedTop(place, token::radiusCard - 1));
    if (_cover.isNull()) {
        painter.fillRect(place, token::canvas);
        // A picture that is still being read isn't missing.
        if (_hasNoCover)
            paintIcon(painter, QRectF(place.center() - QPoint(emptyIcon, emptyIcon) / 2, QSize(emptyIcon, emptyIcon)),
                      Icon::Image, token::iconEmpty);
    } else {
        const QSizeF size = QSizeF(_cover.size()).scaled(place.size(), Qt::KeepAspectRatioByExpanding);
        const QRectF target(QPointF(place.center().x() + .5 - size.width() / 2, place.top()), size);
        painter.drawPixmap(target, _cover, _cover.rect());
    }
    painter.restore();
}

int ThemeCardCell::paintBadge(QPainter& painter, int left, const QString& text, const QColor& ground,
                              const QColor& colour) const {
    const QFont font = textFont(token::textTiny, QFont::Medium);
    const QRectF badge(left, badgeTop, QFontMetrics(font).horizontalAdvance(text) + 2 * badgePadding, badgeHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(badge, token::radiusField, token::radiusField);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(badge, Qt::AlignCenter, text);
    return static_cast<int>(badge.right()) + 4;
}

void ThemeCardCell::paintTexts(QPainter& painter) const {
    const QRect name(padding + 1, cardCoverHeight + 10, width() - 2 * padding - 2, 22);
    const QFont nameFont = textFont(token::textName, QFont::DemiBold);
    const QString shown =
        QFontMetrics(nameFont).elidedText(QString::fromStdString(_card.name), Qt::ElideRight, name.width());
    painter.setFont(nameFont);
    painter.setPen(token::text);
    painter.drawText(name, Qt::AlignLeft | Qt::AlignVCenter, shown);
    const int used = QFontMetrics(nameFont).horizontalAdvance(shown) + 8;
    const QFont small = textFont(token::textSmall);
    painter.setFont(small);
    painter.setPen(token::textSecond);
    if (_card.chineseTitle != _card.name && used + 24 < name.width())
        painter.drawText(name.adjusted(used, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         QFontMetrics(small).elidedText(QString::fromStdString(_card.chineseTitle), Qt::ElideRight,
                                                        name.width() - used));

    int left = padding + 1;
    if (!_card.isReadable)
        left = paintBadge(painter, left, Text("kStart_unreadable"), token::dangerBack, token::dangerText);
    else if (_card.generation >= generationCount)
        left = paintBadge(painter, left, Text("kStart_no_generation"), plainGround, plainText);
    else if (const GenerationBadge& badge = generationBadges[_card.generation]; true)
        left = paintBadge(painter, left, badge.text, badge.ground, badge.colour);
    if (_card.isReadable)
        paintBadge(painter, left, Text(_card.isBig ? "kTheme_big" : "kTheme_small"), plainGround, plainText);

    const QRect last(padding + 1, badgeTop + badgeHeight + 4, name.width(), 20);
    painter.setFont(small);
    painter.setPen(token::textSecond);
    painter.drawText(last, Qt::AlignLeft | Qt::AlignVCenter,
                     changeText(_card.changedAt, QDateTime::currentSecsSinceEpoch()));
    if (_bytes)
        painter.drawText(last, Qt::AlignRight | Qt::AlignVCenter, sizeText(*_bytes));
}

} // namespace zdt
