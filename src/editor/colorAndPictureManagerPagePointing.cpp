#include "canvas/drawPictrue.h"
#include "canvas/phoneView.h"
#include "canvas/previewComposition.h"
#include "canvas/screens/screenTable.h"
#include "editor/colorAndPictureManagerPage.h"
#include "editor/colorAndPictureSetPage.h"
#include "editor/colorItem.h"
#include "editor/colorSetPage.h"
#include "editor/screenLegend.h"
#include "editor/screenPictures.h"
#include "kit/labels.h"
#include "kit/localisation.h"

#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>

#include <algorithm>
#include <utility>

/// What is pointed at on the page, and the ways from a place on the phone to its row.
namespace zdt {

namespace {

constexpr int legendGap = 16;

QString shown(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

void CColorAndPictureManagerPage::placeLegend() {
    const QRect phone = _phone->phonePlace();
    _legend->move(phone.right() + 1 + legendGap, phone.top());
    _legend->setVisible(!_pointedKey.empty() && _legend->geometry().right() < _legend->parentWidget()->width());
}

void CColorAndPictureManagerPage::makeRoomForLegend() {
    QLayout& place = *_phone->parentWidget()->layout();
    const int wide = _phone->parentWidget()->width();
    const int phone = _phone->phonePlace().width();
    const int legend = ScreenLegend::cardWidth + 2 * legendGap;
    // The phone stands in the middle, unless it must give way; a narrow window has no room for both.
    const int missing = 2 * legend + phone - wide;
    place.setContentsMargins(0, 0, phone + legend <= wide ? std::max(0, missing) : 0, 0);
    place.activate();
}

void CColorAndPictureManagerPage::sayHint(const QString& text) {
    const QStringList hints{Text("kTransformation_lock_preview_or_select_area"), Text("key_simple_preview_second"),
                            Text("key_simple_preview_third")};
    _hint.setText(text.isEmpty() ? hints.join(" · ") : text);
}

QString CColorAndPictureManagerPage::wordsOfKey(const std::string& key) const {
    if (const std::optional<ItemPath> path = itemPathOf(key))
        return colourWords({*path, true, path->module != _module, {}});
    const QString file = shown(key.substr(key.find('/') + 1));
    const QString word = Text(file + "_context");
    return word.isEmpty() ? file : word;
}

void CColorAndPictureManagerPage::pointAt(const std::string& key) {
    if (!hasScreen() || !view().composition || key.empty())
        return;
    _pointedKey = key;
    const std::vector<std::size_t> parts = view().composition->partsOf(key);
    _phone->picture().setOutlined(parts);
    const int count = static_cast<int>(parts.size());
    const QString places = count == 1   ? Text("kScreens_place")
                           : count == 0 ? Text("kScreens_no_place")
                                        : TextWith("kScreens_places", count);
    const QString name = wordsOfKey(key);
    _legend->setContent(name, places);
    placeLegend();
    if (!_legend->isVisible())
        sayHint(name + ": " + places);
}

void CColorAndPictureManagerPage::pointAtNothing() {
    if (_pointedKey.empty())
        return;
    _pointedKey.clear();
    _phone->picture().setOutlined({});
    _legend->hide();
    sayHint({});
}

void CColorAndPictureManagerPage::setInspecting(bool on) {
    _phone->picture().setInspecting(on);
    if (!on)
        pointAtNothing();
}

bool CColorAndPictureManagerPage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate)
        inspectByKey(false);
    else if (event->type() == QEvent::KeyPress)
        inspectByKey(static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt);
    else if (event->type() == QEvent::KeyRelease && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
        inspectByKey(false);
    return ZPage::eventFilter(watched, event);
}

void CColorAndPictureManagerPage::inspectByKey(bool on) {
    if (_isInspectingByKey == on)
        return;
    _isInspectingByKey = on;
    setInspecting(on || _outlines.isChecked());
}

bool CColorAndPictureManagerPage::showKey(const std::string& key) {
    if (!theme())
        return false;
    if (_views.empty())
        rebuild();
    std::vector<int> order;
    if (hasScreen())
        order.push_back(_screen);
    for (int index = 0; index < screenCount(); ++index)
        order.push_back(index);
    for (const int index : order) {
        fillSet(index);
        CColorAndPictureSetPage& set = setPage(index);
        CColorItem* item = set.colours().itemOf(key);
        const bool isPicture = !item && set.pictures()->has(key);
        if (!item && !isPicture)
            continue;
        if (index != _screen)
            showScreen(index);
        if (isPicture) {
            set.clearFilter();
            set.selectTab(CColorAndPictureSetPage::pictureTab);
            set.pictures()->showPicture(shown(key));
            pulsePicture(shown(key));
            return true;
        }
        set.selectTab(CColorAndPictureSetPage::colourTab);
        set.colours().showItem(*item);
        return true;
    }
    return false;
}

void CColorAndPictureManagerPage::pick(const std::string& key) {
    if (showKey(key) || itemPathOf(key))
        return;
    auto [path, name] = pictureLeaf(key);
    path.push_back(std::move(name));
    emit keyRequested(shown(joinKeyPath(path)));
}

} // namespace zdt
