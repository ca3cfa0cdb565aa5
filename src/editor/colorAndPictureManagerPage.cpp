#include "editor/colorAndPictureManagerPage.h"

#include "canvas/drawPictrue.h"
#include "canvas/phoneView.h"
#include "canvas/previewComposition.h"
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
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

/// The page and what it shows. What is pointed at, what its controls do and what is done with pictures stands in files
/// of their own.
namespace zdt {

namespace {

constexpr int hintIcon = 16;
constexpr int stripEnd = 16;
constexpr int stripSide = 8;
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

void CColorAndPictureManagerPage::focusSearch() {
    if (hasScreen() && view().set)
        view().set->focusSearch();
}

} // namespace zdt
