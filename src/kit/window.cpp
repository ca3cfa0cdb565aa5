#include "kit/window.h"

#include "kit/baseDialog.h"
#include "kit/tokens.h"
#include "kit/windowButton.h"
#include "kit/windowFrame.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace zdt {

ZWindow::ZWindow(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint)
    , _column(new QVBoxLayout(this))
    , _titleBar(new QWidget(this))
    , _actions(new QWidget(_titleBar))
    , _actionRow(new QHBoxLayout(_actions))
    , _minimise(new WindowButton(WindowButton::Kind::Minimise, _titleBar))
    , _maximise(new WindowButton(WindowButton::Kind::Maximise, _titleBar))
    , _close(new WindowButton(WindowButton::Kind::Close, _titleBar)) {
    _column->setContentsMargins(1, 1, 1, 1);
    _column->setSpacing(0);
    _column->addWidget(_titleBar);
    makeTitleBar();
    new WindowResizer(this);
    new TitleDrag(_titleBar);
}

void ZWindow::makeTitleBar() {
    _titleBar->setObjectName("titleBar");
    _titleBar->setAttribute(Qt::WA_StyledBackground);
    // With the window's edge above it, the bar and its hairline end 48 below the window's top.
    _titleBar->setFixedHeight(token::titleBarHeight - 1);
    _actions->setObjectName("titleActions");
    _actionRow->setContentsMargins(8, 0, 12, 0);
    _actionRow->setSpacing(8);
    auto* row = new QHBoxLayout(_titleBar);
    row->setContentsMargins(0, 0, 0, 1);
    row->setSpacing(0);
    row->addWidget(_actions, 1);
    for (WindowButton* button : {_minimise, _maximise, _close})
        row->addWidget(button, 0, Qt::AlignTop);
    _minimise->setObjectName("minimiseButton");
    _maximise->setObjectName("maximiseButton");
    _close->setObjectName("closeButton");
    connect(_minimise, &QAbstractButton::clicked, this, &QWidget::showMinimized);
    connect(_maximise, &QAbstractButton::clicked, this, &ZWindow::toggleMaximised);
    connect(_close, &QAbstractButton::clicked, this, &QWidget::close);
}

void ZWindow::setContent(QWidget* content) {
    if (_content) {
        _column->removeWidget(_content);
        _content->hide();
        _content->deleteLater();
    }
    _content = content;
    _column->addWidget(content, 1);
}

void ZWindow::setButtonTexts(const ButtonTexts& texts) {
    _texts = texts;
    showState();
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
    _maximise->setKind(large ? WindowButton::Kind::Restore : WindowButton::Kind::Maximise);
    _minimise->setTexts(_texts.minimise);
    _maximise->setTexts(large ? _texts.restore : _texts.maximise);
    _close->setTexts(_texts.close);
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
    _actions->setEnabled(false);
}

void ZWindow::dialogClosed(ZBaseDialog* dialog) {
    std::erase(_dialogs, dialog);
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
    if (leaveDialogs())
        QWidget::closeEvent(event);
    else
        event->ignore();
}

} // namespace zdt
