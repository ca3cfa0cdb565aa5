#include "kit/baseDialog.h"

#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/lateSignals.h"
#include "kit/scrim.h"
#include "kit/tokens.h"
#include "kit/window.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace zdt {

namespace {

constexpr int noteSide = 16;

} // namespace

ZBaseDialog::ZBaseDialog(QWidget* parent)
    : QDialog(nullptr, Qt::Dialog | Qt::FramelessWindowHint)
    , _owner(parent)
    , _head(new QWidget(this))
    , _title(new QLabel(_head))
    , _close(new QPushButton(_head))
    , _body(new QVBoxLayout)
    , _foot(new QWidget(this))
    , _noteSign(new QLabel(_foot))
    , _note(new QLabel(_foot))
    , _buttons(new QHBoxLayout) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    setProperty("focusRing", false);
    makeHead();
    makeFoot();
    column->addWidget(_head);
    auto* middle = new QWidget(this);
    middle->setObjectName("dialogBody");
    middle->setLayout(_body);
    _body->setContentsMargins(token::dialogPadding, 0, token::dialogPadding, token::dialogPadding);
    column->addWidget(middle, 1);
    column->addWidget(_foot);
}

ZBaseDialog::~ZBaseDialog() {
    hearNoChildren(this);
    leaveHost();
}

void ZBaseDialog::makeHead() {
    _head->setFixedHeight(token::dialogHead);
    _head->installEventFilter(this);
    _title->setObjectName("dialogTitle");
    _title->setProperty("type", "title");
    _title->setTextFormat(Qt::PlainText);
    _close->setObjectName("dialogClose");
    _close->setProperty("kind", "quiet");
    _close->setAutoDefault(false);
    setButtonIcon(_close, Icon::Close, 20);
    connect(_close, &QPushButton::clicked, this, &ZBaseDialog::reject);
    auto* row = new QHBoxLayout(_head);
    row->setContentsMargins(token::dialogPadding, 0, 12, 0);
    row->addWidget(_title, 1);
    row->addWidget(_close);
}

void ZBaseDialog::makeFoot() {
    _foot->setObjectName("dialogFoot");
    _foot->setAttribute(Qt::WA_StyledBackground);
    _foot->setFixedHeight(token::dialogFoot);
    _foot->hide();
    _note->setProperty("type", "hint");
    _note->setTextFormat(Qt::PlainText);
    auto* row = new QHBoxLayout(_foot);
    row->setContentsMargins(token::dialogPadding, 0, token::dialogPadding, 0);
    row->setSpacing(8);
    _noteSign->setPixmap(iconPixmap(Icon::InfoOutline, token::iconPlain, noteSide, devicePixelRatioF()));
    _noteSign->hide();
    row->addWidget(_noteSign);
    row->addWidget(_note, 1);
    row->addLayout(_buttons);
    _buttons->setSpacing(8);
}

void ZBaseDialog::setTitle(const QString& title) {
    _title->setText(title);
    setWindowTitle(title);
    setAccessibleName(title);
}

void ZBaseDialog::setCloseTip(const QString& tip) {
    _close->setToolTip(tip);
    _close->setAccessibleName(tip);
}

QPushButton* ZBaseDialog::addButton(const QString& text, const QString& name, const QString& kind, int place) {
    auto* button = new QPushButton(text, _foot);
    button->setObjectName(name);
    button->setProperty("kind", kind);
    button->setMinimumWidth(token::dialogButtonWidth);
    // In its window a dialog is no window of its own; there, a default button that loses the focus would be none any
    // more. So the focus changes nothing, and Enter on a button is seen to below.
    button->setAutoDefault(false);
    _buttons->insertWidget(place, button);
    _foot->show();
    return button;
}

void ZBaseDialog::setNote(const QString& note) {
    _note->setText(note);
    _noteSign->setVisible(!note.isEmpty());
    _foot->show();
}

void ZBaseDialog::setClosable(bool closable) {
    _closable = closable;
    _close->setVisible(closable);
}

void ZBaseDialog::setVisible(bool visible) {
    // Moving into the host loses what was chosen to have the focus first.
    const QPointer<QWidget> first = isVisible() ? nullptr : focusWidget();
    if (visible && !isVisible() && !_scrim)
        enterHost();
    QDialog::setVisible(visible);
    if (visible && _scrim) {
        _scrim->present();
        if (first)
            first->setFocus();
        else if (!focusWidget())
            focusNextChild();
        else
            focusWidget()->setFocus();
        // A dialog with nothing to be chosen keeps the keyboard itself, or what lies below would have it.
        if (!isAncestorOf(QApplication::focusWidget()))
            setFocus();
    }
    if (!visible)
        leaveHost();
}

void ZBaseDialog::enterHost() {
    QWidget* host = _owner ? _owner->window() : nullptr;
    if (!host || !host->isVisible())
        return;
    _focusBefore = host->focusWidget();
    _scrim = new Scrim(host, this);
    // A sub-window keeps Tab inside, as a window of its own would.
    setParent(_scrim, Qt::SubWindow);
    if (auto* framed = qobject_cast<ZWindow*>(host))
        framed->dialogOpened(this);
}

void ZBaseDialog::leaveHost() {
    if (!_scrim)
        return;
    auto* framed = qobject_cast<ZWindow*>(_scrim->parentWidget());
    Scrim* scrim = _scrim;
    _scrim = nullptr;
    // Or the host would go on pointing to a widget that isn't in it any more.
    if (QWidget* focused = focusWidget())
        focused->clearFocus();
    setParent(nullptr, Qt::Dialog | Qt::FramelessWindowHint);
    scrim->hide();
    scrim->deleteLater();
    if (framed)
        framed->dialogClosed(this);
    if (_focusBefore)
        _focusBefore->setFocus();
}

void ZBaseDialog::reject() {
    if (_closable)
        QDialog::reject();
}

void ZBaseDialog::drag(const QPoint& by) {
    move(_scrim ? _scrim->fitted(pos() + by) : pos() + by);
    if (_scrim)
        _scrim->update();
}

bool ZBaseDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == _head && event->type() == QEvent::MouseButtonPress) {
        _held = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
        return true;
    }
    if (watched == _head && event->type() == QEvent::MouseMove) {
        const QPoint now = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
        drag(now - _held);
        _held = now;
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void ZBaseDialog::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* button = qobject_cast<QPushButton*>(focusWidget());
    if (isEnter && button && (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier)
        button->click();
    else
        QDialog::keyPressEvent(event);
    // What a dialog doesn't want must not reach the window below it.
    event->accept();
}

void ZBaseDialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    if (_scrim)
        _scrim->update();
}

void ZBaseDialog::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!_scrim) {
        painter.fillRect(rect(), token::card);
        painter.setPen(token::windowEdge);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(token::card);
    painter.drawRoundedRect(QRectF(rect()), token::radiusCard, token::radiusCard);
}

} // namespace zdt
