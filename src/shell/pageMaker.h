#pragma once

#include "kit/layoutError.h"
#include "kit/workbench.h"

#include <QStackedWidget>
#include <QString>
#include <QVBoxLayout>

namespace zdt {

/// What stands in the place of a page that can't be made: that it can't, and why.
[[nodiscard]] QWidget* brokenPage(const QString& why);

/// Adds a page to a stack. If its layout is missing or damaged, what says so is added in its place, and the program
/// goes on without it.
/// @param shown receives what was added
/// @return the page; null if it couldn't be made
template <typename Page>
Page* makePage(QStackedWidget& stack, QWidget*& shown, Workbench& bench) {
    Page* page = nullptr;
    try {
        page = new Page(bench, &stack);
        shown = page;
    } catch (const LayoutError& error) {
        shown = brokenPage(QString::fromUtf8(error.what()));
    }
    stack.addWidget(shown);
    return page;
}

/// The same for a place that has nothing in it yet.
template <typename Page>
Page* makePageIn(QWidget& place, QWidget*& shown, Workbench& bench) {
    auto* stack = new QStackedWidget;
    auto* column = new QVBoxLayout(&place);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(stack);
    return makePage<Page>(*stack, shown, bench);
}

} // namespace zdt
