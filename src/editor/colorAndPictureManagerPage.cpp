#include "editor/colorAndPictureManagerPage.h"

#include "canvas/drawPictrue.h"
#include "canvas/phoneView.h"
#include "canvas/previewComposition.h"
#include "canvas/screens/screenTable.h"
#include "editor/batchUpload.h"
#include "editor/colorAndPictureSetPage.h"
#include "editor/colorItem.h"
#include "editor/colorSetPage.h"
#include "editor/moduleWords.h"
#include "editor/previewCapture.h"
#include "editor/screenLegend.h"
#include "editor/screenParts.h"
#include "editor/screenPictures.h"
#include "kit/flowView.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/labels.h"
#include "kit/localisation.h"
#include "kit/notificationNames.h"
#include "kit/tokens.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

/// The page and what it shows; what its controls do stands in colorAndPictureManagerPageChanges.cpp.
namespace zdt {

namespace {

constexpr int hintIcon = 16;
constexpr int stripEnd = 16;
constexpr int stripSide = 8;
constexpr int legendGap = 16;
/// The narrowest bar that has room for all its words.
constexpr int wideBar = 620;
/// Milliseconds.
constexpr int stripDelay = 120;
constexpr int outlineDelay = 900;

QString shown(const std::string& text) {
    return QString::fromStdString(text);
}

QString screenWords(std::string_view screen) {
    const QString name = QString::fromUtf8(screen.data(), static_cast<qsizetype>(screen.size()));
    const QString word = Text(name + "_context");
    return word.isEmpty() ? name : word;
}

} // namespace

CColorAndPictureManagerPage::CColorAndPictureManagerPage(Workbench& bench, std::string module, QWidget* parent)
    : ZPage(bench, "simplePage.xml", parent)
    , _module(std::move(module))
    , _title(control<QLabel>("screenTitle"))
    , _count(control<QLabel>("screenCount"))
    , _outlines(control<QPushButton>("screenOutlines"))
    , _capture(control<QPushButton>("screenCapture"))
    , _zoomOut(control<QPushButton>("screenZoomOut"))
    , _zoomFit(control<QPushButton>("screenZoomFit"))
    , _zoomIn(control<QPushButton>("screenZoomIn"))
    , _stripView(control<ZFlowView>("screenStrip"))
    , _sets(control<QStackedWidget>("screenSets"))
    , _hint(control<ZElidedLabel>("screenHint"))
    , _phone(new ZPhoneView(&control<QWidget>("phonePlace")))
    , _legend(new ScreenLegend(&control<QWidget>("phonePlace"))) {
    auto* place = new QVBoxLayout(&control<QWidget>("phonePlace"));
    place->setContentsMargins(0, 0, 0, 0);
    place->addWidget(_phone);
    control<QLabel>("screenHintIcon")
        .setPixmap(iconPixmap(Icon::InfoOutline, token::iconNavigation, hintIcon, devicePixelRatioF()));
    _legend->raise();
    _stripView.setMargins(stripSide, stripEnd);
    _stripView.setSource(&_strip);
    connect(&_stripView, &CellView::currentChanged, this, [this](int index) {
        if (index < 0 || index == _screen)
            return;
        this->bench().notifications().SendNotify(_stripView.cellAt(index), notify::click);
    });
    _batch = std::make_unique<BatchUpload>(bench, _module, *this);
    // A page that is made late forgets nothing on its first reload.
    _theme = bench.themeSerial();
    connectBar();
    connectBatch();
}

CColorAndPictureManagerPage::~CColorAndPictureManagerPage() {
    _stripView.setSource(nullptr);
}

void CColorAndPictureManagerPage::connectBar() {
    CDrawPictrue& picture = _phone->picture();
    connect(&picture, &CDrawPictrue::pointed, this, [this](const QString& key) { pointAt(key.toStdString()); });
    connect(&picture, &CDrawPictrue::unpointed, this, &CColorAndPictureManagerPage::pointAtNothing);
    connect(&picture, &CDrawPictrue::picked, this, [this](const QString& key) { pick(key.toStdString()); });
    connect(&_outlines, &QPushButton::toggled, this, [this](bool on) { setInspecting(on); });
    connect(&_zoomOut, &QPushButton::clicked, _phone, &ZPhoneView::zoomOut);
    connect(&_zoomIn, &QPushButton::clicked, _phone, &ZPhoneView::zoomIn);
    connect(&_zoomFit, &QPushButton::clicked, _phone, &ZPhoneView::zoomToFit);
    connect(_phone, &ZPhoneView::zoomChanged, this, &CColorAndPictureManagerPage::showZoom);
    connect(&_capture, &QPushButton::clicked, this,
            [this] { bench().notifications().SendNotify(&_capture, notify::Notify_ScreenCapture_Msg); });
    _capture.setVisible(hasCapture(_module));
    _composing.setSingleShot(true);
    connect(&_composing, &QTimer::timeout, this, &CColorAndPictureManagerPage::composeNext);
    _stripTimer.setSingleShot(true);
    _stripTimer.setInterval(stripDelay);
    connect(&_stripTimer, &QTimer::timeout, this, [this] {
        for (int index = 0; index < screenCount(); ++index)
            _oldPreviews.insert(index);
        refreshNext();
    });
    _outlineTimer.setSingleShot(true);
    _outlineTimer.setInterval(outlineDelay);
    connect(&_outlineTimer, &QTimer::timeout, this, [this] { pointAt(_pointedKey); });
    _tryTimer.setSingleShot(true);
    _tryTimer.setInterval(token::progressInterval);
}

QString CColorAndPictureManagerPage::nameOf(const View& view) const {
    return shown(_module + "|" + std::string(view.screen->name));
}

int CColorAndPictureManagerPage::indexOf(const QString& screen) const {
    const std::string name = screen.toStdString();
    const auto found =
        std::find_if(_views.begin(), _views.end(), [&](const View& each) { return each.screen->name == name; });
    return found == _views.end() ? -1 : static_cast<int>(found - _views.begin());
}

void CColorAndPictureManagerPage::reload() {
    if (_theme != bench().themeSerial()) {
        _theme = bench().themeSerial();
        _batch->forgetAll();
        _screen = std::min(_screen, 0);
    }
    if (isVisible())
        rebuild();
}

void CColorAndPictureManagerPage::dropViews() {
    pointAtNothing();
    _strip.setEntries({});
    for (View& each : _views) {
        if (!each.set)
            continue;
        // It may still hear of the focus until it is gone.
        each.set->colours().disconnect(this);
        each.set->deleteLater();
    }
    _views.clear();
    _phone->picture().setComposition(nullptr);
    _screen = -1;
}

void CColorAndPictureManagerPage::rebuild() {
    const ThemeResource* open = theme();
    const std::vector<const Screen*> screens = open ? shownScreens(*open, _module) : std::vector<const Screen*>();
    const auto isSame = [](const View& view, const Screen* screen) { return view.screen == screen; };
    if (!std::equal(_views.begin(), _views.end(), screens.begin(), screens.end(), isSame)) {
        dropViews();
        for (const Screen* screen : screens)
            _views.push_back({screen, nullptr, nullptr});
    }
    std::vector<ScreenStrip::Entry> entries;
    for (View& each : _views) {
        if (each.composition)
            each.composition->setDescription(describe(each));
        entries.push_back({nameOf(each) + "|preview|button", screenWords(each.screen->name), each.composition, false});
    }
    _strip.setEntries(std::move(entries));
    showWords();
    if (_views.empty())
        return;
    showScreen(std::clamp(_screen, 0, screenCount() - 1));
    _composing.start(0);
}

void CColorAndPictureManagerPage::startAnew() {
    rebuild();
    showScreen(0);
}

void CColorAndPictureManagerPage::showWords() {
    _title.setText(moduleWord(_module));
    _count.setText(screenCount() == 1 ? Text("kScreens_count_one") : TextWith("kScreens_count", screenCount()));
    sayHint({});
    showZoom();
    fitBar();
}

void CColorAndPictureManagerPage::fitBar() {
    const bool isWide = _title.parentWidget()->width() >= wideBar;
    _count.setVisible(isWide);
    _capture.setText(isWide ? Text("kScreens_capture") : QString());
    _capture.setAccessibleName(Text("kScreens_capture"));
    setStyleProperty(&_capture, "withIcon", isWide ? "text" : "alone");
}

void CColorAndPictureManagerPage::showZoom() {
    _zoomFit.setText(_phone->zoom() == ZPhoneView::fitZoom ? Text("kScreens_fit")
                                                           : QString("%1 %").arg(_phone->zoom()));
    _zoomOut.setEnabled(_phone->zoom() > ZPhoneView::minZoom);
    _zoomIn.setEnabled(_phone->zoom() < ZPhoneView::maxZoom);
    placeLegend();
}

PreviewDescription CColorAndPictureManagerPage::describe(const View& view) const {
    return describeScreen(*theme(), *view.screen, GetLanguage() == chineseLanguage);
}

PreviewComposition& CColorAndPictureManagerPage::composition(int index) {
    View& each = _views[static_cast<std::size_t>(index)];
    if (!each.composition) {
        each.composition = std::make_shared<PreviewComposition>();
        each.composition->setDescription(describe(each));
    }
    return *each.composition;
}

void CColorAndPictureManagerPage::composeNext() {
    if (!theme())
        return;
    for (int index = 0; index < screenCount(); ++index) {
        if (_strip.entries()[static_cast<std::size_t>(index)].composition)
            continue;
        static_cast<void>(composition(index).frame());
        _strip.setComposition(index, _views[static_cast<std::size_t>(index)].composition);
        _composing.start(0);
        return;
    }
}

void CColorAndPictureManagerPage::refreshNext() {
    if (_oldPreviews.empty() || !theme())
        return;
    const int index = *_oldPreviews.begin();
    _oldPreviews.erase(_oldPreviews.begin());
    if (index < screenCount() && _views[static_cast<std::size_t>(index)].composition) {
        static_cast<void>(composition(index).frame());
        emit _strip.changed(index, index);
    }
    // One after the other, so that keys aren't kept waiting.
    QTimer::singleShot(0, this, &CColorAndPictureManagerPage::refreshNext);
}

CColorAndPictureSetPage& CColorAndPictureManagerPage::setPage(int index) {
    View& each = _views[static_cast<std::size_t>(index)];
    if (!each.set) {
        each.set = new CColorAndPictureSetPage(nameOf(each), bench().notifications(), &_sets);
        each.set->setPictures(makePictures(*each.screen, *each.set));
        each.set->setGrid(_isGrid);
        connect(each.set, &CColorAndPictureSetPage::gridChosen, this, &CColorAndPictureManagerPage::showAsGrid);
        _sets.addWidget(each.set);
        connect(&each.set->colours(), &CColorSetPage::entered, this, [this, set = each.set](CColorItem* item) {
            const ColourRow* row = hasScreen() ? set->colours().rowOf(*item) : nullptr;
            if (row && view().composition)
                _phone->picture().pulseParts(view().composition->partsOf(row->path.key()));
        });
    }
    return *each.set;
}

void CColorAndPictureManagerPage::fillSet(int index) {
    const View& each = _views[static_cast<std::size_t>(index)];
    setPage(index).showColours(*theme(), colourRowsOf(*theme(), *each.screen));
    fillPictures(index);
}

void CColorAndPictureManagerPage::showScreen(int index) {
    if (!theme() || index < 0 || index >= screenCount())
        return;
    const int tab = _screen >= 0 && view().set ? view().set->tab() : CColorAndPictureSetPage::colourTab;
    pointAtNothing();
    _screen = index;
    static_cast<void>(composition(index));
    _phone->picture().setComposition(view().composition);
    _phone->picture().setAccessibleName(screenWords(view().screen->name));
    fillSet(index);
    view().set->selectTab(tab);
    _sets.setCurrentWidget(view().set);
    _stripView.setCurrent(index);
}

void CColorAndPictureManagerPage::showEvent(QShowEvent* event) {
    ZPage::showEvent(event);
    qApp->installEventFilter(this);
    makeRoomForLegend();
    rebuild();
}

void CColorAndPictureManagerPage::hideEvent(QHideEvent* event) {
    ZPage::hideEvent(event);
    qApp->removeEventFilter(this);
    inspectByKey(false);
    clearPictureHint();
    _composing.stop();
    // A composed screen takes 9 MiB: what isn't seen is put together again when it is.
    _phone->picture().setComposition(nullptr);
    _strip.setEntries({});
    for (View& each : _views)
        each.composition.reset();
}

void CColorAndPictureManagerPage::resizeEvent(QResizeEvent* event) {
    ZPage::resizeEvent(event);
    fitBar();
    makeRoomForLegend();
    placeLegend();
}

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

void CColorAndPictureManagerPage::focusSearch() {
    if (hasScreen() && view().set)
        view().set->focusSearch();
}

} // namespace zdt
