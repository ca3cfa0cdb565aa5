#include "kit/labels.h"

#include "kit/kitStyle.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QToolTip>

namespace zdt {

ZBadge::ZBadge(QWidget* parent)
    : ZBadge({}, "plain", parent) {}

ZBadge::ZBadge(const QString& text, const QString& kind, QWidget* parent)
    : QLabel(text, parent) {
    setAlignment(Qt::AlignCenter);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setProperty("kind", kind);
}

void ZBadge::setKind(const QString& kind) {
    setStyleProperty(this, "kind", kind);
}

ZElidedLabel::ZElidedLabel(QWidget* parent)
    : ZElidedLabel({}, parent) {}

ZElidedLabel::ZElidedLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
}

void ZElidedLabel::setElideMode(Qt::TextElideMode mode) {
    _mode = mode;
    update();
}

QSize ZElidedLabel::minimumSizeHint() const {
    return {fontMetrics().horizontalAdvance(QChar(0x2026)), QLabel::minimumSizeHint().height()};
}

QString ZElidedLabel::shown() const {
    return fontMetrics().elidedText(text(), _mode, contentsRect().width());
}

void ZElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine, palette(),
                          isEnabled(), shown(), foregroundRole());
}

bool ZElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && shown() != text()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text().toHtmlEscaped(), this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace zdt
