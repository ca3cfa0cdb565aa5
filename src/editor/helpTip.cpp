#include "editor/helpTip.h"

#include "kit/kitStyle.h"
#include "kit/tokens.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace zdt {

namespace {

constexpr QSize tipSize(220, 150);
constexpr int distance = 6;

/// Beside the button, on its left where the right has no room, and wholly on the screen.
QPoint placeBeside(const QWidget& button) {
    const QRect place(button.mapToGlobal(QPoint()), button.size());
    const QRect screen = button.screen()->availableGeometry();
    int x = place.right() + 1 + distance;
    if (x + tipSize.width() > screen.right())
        x = place.left() - distance - tipSize.width();
    const int lowest = std::max(screen.top(), screen.bottom() + 1 - tipSize.height());
    return {std::max(x, screen.left()), std::clamp(place.top(), screen.top(), lowest)};
}

} // namespace

HelpTip::HelpTip(QWidget& button, const QString& text)
    : QFrame(&button, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint) {
    setObjectName("exportHelpTip");
    setAttribute(Qt::WA_DeleteOnClose);
    setFixedSize(tipSize);
    auto* words = new QLabel(text, this);
    words->setObjectName("exportHelpText");
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    words->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 14, 16, 14);
    column->addWidget(words);
    setAccessibleName(text);
}

void HelpTip::show(QWidget& button, const QString& text) {
    auto* tip = new HelpTip(button, text);
    tip->move(placeBeside(button));
    roundCorners(tip, token::radiusCard);
    tip->setVisible(true);
    tip->setFocus();
}

void HelpTip::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
        event->key() == Qt::Key_Space)
        close();
    else
        QFrame::keyPressEvent(event);
}

} // namespace zdt
