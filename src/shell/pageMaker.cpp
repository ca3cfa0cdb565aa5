#include "shell/pageMaker.h"

#include "kit/emptyState.h"
#include "kit/localisation.h"

namespace zdt {

QWidget* brokenPage(const QString& why) {
    auto* page = new ZEmptyState;
    page->setObjectName("brokenPage");
    page->setIcon("broken_image");
    page->setTexts(Text("kWindow_page_missing"), why);
    return page;
}

} // namespace zdt
