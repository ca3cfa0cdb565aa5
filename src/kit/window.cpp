#include "kit/window.h"

#include "kit/baseDialog.h"
#include "kit/controlSearch.h"
#include "kit/tokens.h"
#include "kit/windowFrame.h"

#include <QCloseEvent>
#include <QPainter>

namespace zdt {

ZWindow::ZWindow(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint)
    , _column(new QVBoxLayout(this)) {
    _column->setContentsMargins(1, 1, 1, 1);
    _column->setSpacing(0);
    new WindowResizer(this);
}

void ZWindow::setFrame(QWidget* frame) {
    _column->addWidget(frame);
    _titleBar = tryFindControl<QWidget>(this, "TOP_TAB_BAR");
    if (_titleBar)
        new TitleDrag(_titleBar);
    _actions = tryFindControl<QWidget>(this, "titleActions");
    _maximise = tryFindControl<QAbstractButton>(this, "maxbtn");
    _restore = tryFindControl<QAbstractButton>(this, "restorebtn");
    for (QAbstractButton* button : {_maximise.data(), _restore.data()}) {
        if (button)
            connect(button, &QAbstractButton::clicked, this, &ZWindow::toggleMaximised);
    }
    if (auto* button = tryFindControl<QAbstractButton>(this, "minbtn"))
        connect(button, &QAbstractButton::clicked, this, &QWidget::showMinimized);
    if (auto* button = tryFindControl<QAbstractButton>(this, "closebtn"))
        connect(button, &QAbstractButton::clicked, this, &QWidget::close);
    showState();
}

int ZWindow::titleHeight() const {
    return _titleBar ? token::titleBarHeight : 0;
}

bool ZWindow::isMaximisedOrFull() const {
    return isMaximized() || isFullScreen();
}

void ZWindow::toggleMaximised() {
    if (isMaximisedOrFull())
        showNormal();
    else
        showMaximized();
}

void ZWindow::showState() {
    const bool large = isMaximisedOrFull();
    const int edge = large ? 0 : 1;
    _column->setContentsMargins(edge, edge, edge, edge);
    if (_maximise)
        _maximise->setVisible(!large);
    if (_restore)
        _restore->setVisible(large);
}

void ZWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange)
        showState();
    QWidget::changeEvent(event);
}

void ZWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), token::window);
    if (isMaximisedOrFull())
        return;
    painter.setPen(token::windowEdge);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ZWindow::dialogOpened(ZBaseDialog* dialog) {
    _dialogs.push_back(dialog);
    if (_actions)
        _actions->setEnabled(false);
}

void ZWindow::dialogClosed(ZBaseDialog* dialog) {
    std::erase(_dialogs, dialog);
    if (_actions)
        _actions->setEnabled(_dialogs.empty());
}

bool ZWindow::leaveDialogs() {
    while (!_dialogs.empty()) {
        ZBaseDialog* last = _dialogs.back();
        if (!last->mayClose())
            return false;
        last->reject();
        if (!_dialogs.empty() && _dialogs.back() == last)
            return false;
    }
    return true;
}

void ZWindow::closeEvent(QCloseEvent* event) {
    if (leaveDialogs() && mayClose())
        QWidget::closeEvent(event);
    else
        event->ignore();
}

} // namespace zdt
