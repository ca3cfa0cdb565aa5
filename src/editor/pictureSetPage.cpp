#include "editor/pictureSetPage.h"

#include "editor/pictureItem.h"
#include "kit/listView.h"

namespace zdt {

namespace {

constexpr int headSide = 16;

} // namespace

CPictureSetPage::CPictureSetPage(QWidget* parent)
    : PictureSet([](QWidget* cellParent) { return new CPictureItem(cellParent); }, headSide, parent) {
    auto* list = new ZListView(this);
    list->setObjectName("pictureList");
    list->setSource(&source());
    setView(list);
}

} // namespace zdt
