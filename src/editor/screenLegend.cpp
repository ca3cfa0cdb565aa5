#include "editor/screenLegend.h"

#include "kit/tokens.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace zdt {

namespace {
constexpr int padding = 12;
constexpr int signSide = 12;
constexpr int signTop = 14;
constexpr int textLeft = padding + signSide + 8;
} // namespace

ScreenLegend::ScreenLegend(QWidget* parent)
    : QFrame(parent)
    , _name(new QLabel(this))
    , _places(new QLabel(this)) {
    setProperty("region", "card");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFixedWidth(cardWidth);
    _name->setProperty("type", "legend");
    _name->setWordWrap(true);
    _name->setTextFormat(Qt::PlainText);
    _places->setProperty("type", "hint");
    _places->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(textLeft, padding - 2, padding, padding - 2);
    column->setSpacing(2);
    column->addWidget(_name);
    column->addWidget(_places);
    hide();
}

void ScreenLegend::setContent(const QString& name, const QString& places) {
    _name->setText(name);
    _places->setText(places);
    setAccessibleName(name + ", " + places);
    setFixedHeight(layout()->heightForWidth(cardWidth) > 0 ? layout()->totalHeightForWidth(cardWidth)
                                                           : layout()->sizeHint().height());
}

void ScreenLegend::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(token::outlineLine, 2));
    painter.setBrush(token::outlineFill);
    painter.drawRoundedRect(QRectF(padding + 1, signTop, signSide - 2, signSide - 2), 2, 2);
}

} // namespace zdt
