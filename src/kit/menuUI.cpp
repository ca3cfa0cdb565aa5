#include "kit/menuUI.h"

#include "kit/fonts.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/tokens.h"

#include <QPainter>

namespace zdt {

namespace {

constexpr int textLeft = 40;
constexpr int iconSide = 18;
constexpr int padding = 12;
constexpr const char* dangerProperty = "danger";

} // namespace

ZMenuUI::ZMenuUI(QWidget* parent)
    : QMenu(parent) {
    setWindowFlag(Qt::NoDropShadowWindowHint);
}

QAction* ZMenuUI::addRow(Icon which, const QString& text, bool danger) {
    QAction* action = addAction(zdt::icon(which, danger ? token::dangerText : token::iconPlain), text);
    action->setProperty(dangerProperty, danger);
    return action;
}

void ZMenuUI::resizeEvent(QResizeEvent* event) {
    QMenu::resizeEvent(event);
    roundCorners(this, token::radiusCard);
}

void ZMenuUI::paintRow(QPainter& painter, const QAction& action, const QRect& row) const {
    if (action.isSeparator()) {
        painter.fillRect(QRect(row.left(), row.center().y(), row.width(), 1), token::hairline);
        return;
    }
    if (&action == activeAction() && action.isEnabled())
        painter.fillRect(row, token::rowSelected);
    const QRect sign(row.left() + padding, row.center().y() - iconSide / 2 + 1, iconSide, iconSide);
    action.icon().paint(&painter, sign, Qt::AlignCenter, action.isEnabled() ? QIcon::Normal : QIcon::Disabled,
                        action.isChecked() ? QIcon::On : QIcon::Off);
    if (action.isCheckable() && action.isChecked() && action.icon().isNull())
        paintIcon(painter, sign, Icon::Check, token::accentText);
    const bool danger = action.property(dangerProperty).toBool();
    painter.setPen(!action.isEnabled() ? token::textOff : danger ? token::dangerText : token::text);
    painter.setFont(font());
    const QRect words = row.adjusted(textLeft, 0, -padding, 0);
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, action.text());
    painter.setFont(textFont(token::textSmall));
    painter.setPen(action.isEnabled() ? token::textSecond : token::textOff);
    painter.drawText(words, Qt::AlignRight | Qt::AlignVCenter, action.shortcut().toString(QKeySequence::NativeText));
}

void ZMenuUI::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), token::card);
    for (const QAction* action : actions())
        paintRow(painter, *action, actionGeometry(const_cast<QAction*>(action)));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(token::windowEdge);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), token::radiusCard, token::radiusCard);
}

} // namespace zdt
