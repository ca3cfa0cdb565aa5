#include "shell/pageMaker.h"

#include "kit/emptyState.h"
#include "kit/localisation.h"

#include <QLabel>

namespace zdt {

QWidget* brokenPage(const QString& why) {
    auto* page = new ZEmptyState;
    page->setObjectName("brokenPage");
    page->setIcon("broken_image");
    page->setTexts(Text("kWindow_page_missing"), why);
    page->findChild<QLabel*>("emptyTitle")->setProperty("textKey", "kWindow_page_missing");
    return page;
}

} // namespace zdt
