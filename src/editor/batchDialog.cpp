#include "editor/batchDialog.h"

#include "editor/batchCells.h"
#include "editor/batchWords.h"
#include "kit/controlSearch.h"
#include "kit/flowView.h"
#include "kit/icons.h"
#include "kit/labels.h"
#include "kit/layoutError.h"
#include "kit/listView.h"
#include "kit/localisation.h"
#include "kit/textLookup.h"
#include "kit/tokens.h"
#include "kit/workbench.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace zdt {

namespace {

constexpr int dialogWidth = 560;
constexpr int signSide = 20;
constexpr int mostMatchedRows = 2;
constexpr int mostRefusedRows = 4;

} // namespace

BatchDialog::BatchDialog(Workbench& bench, const BatchResult& result, QWidget* parent)
    : ZBaseDialog(parent)
    , _result(result)
    , _matched(new MatchedPictures(this))
    , _refused(new RefusedPictures(this)) {
    SkinLoader::Result loaded = bench.layouts().load("batchUpload.xml");
    if (!loaded.widget)
        throw LayoutError(loaded.error);
    body()->addWidget(loaded.widget.release());
    relabel(this, Text);
    setFixedWidth(dialogWidth);
    setTitle(Text("kBatch_title"));
    setCloseTip(Text("kBatch_close_tip"));
    FindControl<ZFlowView>(this, "batchMatchedView").setSource(_matched);
    auto& refusedView = FindControl<ZListView>(this, "batchRefusedView");
    refusedView.setSource(_refused);
    connect(_refused, &RefusedPictures::anotherAsked, this, &BatchDialog::anotherAsked, Qt::QueuedConnection);
    connect(_refused, &RefusedPictures::placeAsked, this, &BatchDialog::placeAsked, Qt::QueuedConnection);
    connect(&refusedView, &ZListView::activated, this, [this, &refusedView](int index) {
        if (auto* button = refusedView.cellAt(index)->findChild<QPushButton*>("refusedAnother"))
            button->click();
    });
    makeButtons();
    std::vector<QString> words;
    for (const BatchRefusal& refusal : _result.refused)
        words.push_back(refusalWords(refusal));
    _words = words;
    say();
}

BatchDialog::~BatchDialog() = default;

void BatchDialog::makeButtons() {
    auto* copy = addButton(Text("kBatch_copy"), "batchCopy", "link");
    copy->setToolTip(Text("kBatch_copy_tip"));
    // At the left of the foot, where notes stand.
    if (auto* foot = qobject_cast<QHBoxLayout*>(FindControl<QWidget>(this, "dialogFoot").layout()))
        foot->insertWidget(0, copy);
    QPushButton* why = addButton(Text("kIcon_Simple_BatchUpload_Situation_btn"), "batchProblems");
    why->setToolTip(Text("kBatch_problems_tip"));
    QPushButton* more = addButton(Text("kBatch_more"), "batchMore");
    QPushButton* end = addButton(Text("kBatch_done"), "batchDone", "filled");
    end->setDefault(true);
    connect(copy, &QPushButton::clicked, this, &BatchDialog::copyList);
    connect(why, &QPushButton::clicked, this, [this] { QDialog::done(showProblems); });
    connect(more, &QPushButton::clicked, this, [this] { QDialog::done(uploadMore); });
    connect(end, &QPushButton::clicked, this, &QDialog::accept);
    end->setFocus();
}

void BatchDialog::say() {
    const int good = static_cast<int>(_result.matched.size());
    const int bad = static_cast<int>(_result.refused.size());
    const bool isGood = bad == 0;
    FindControl<QLabel>(this, "batchSign")
        .setPixmap(iconPixmap(isGood ? Icon::CheckCircle : Icon::Error, isGood ? token::ok : token::danger, signSide,
                              devicePixelRatioF()));
    FindControl<QLabel>(this, "batchSituation").setText(situationText(_result));
    FindControl<QLabel>(this, "batchRead").setText(Text("kBatch_read").arg(good + bad));
    auto& bar = FindControl<QWidget>(this, "batchBar");
    auto* parts = static_cast<QHBoxLayout*>(bar.layout());
    parts->setStretch(0, good);
    parts->setStretch(1, bad);
    FindControl<QWidget>(this, "batchBarGood").setVisible(good > 0);
    FindControl<QWidget>(this, "batchBarBad").setVisible(bad > 0);
    const auto replaced = std::count_if(_result.matched.begin(), _result.matched.end(),
                                        [](const BatchMatch& match) { return match.replaced; });
    const int own = static_cast<int>(replaced);
    FindControl<QLabel>(this, "batchReplaced").setText(Text("kBatch_replaced").arg(own).arg(good - own));
    FindControl<ZBadge>(this, "batchMatchedCount").setText(QString::number(good));
    FindControl<ZBadge>(this, "batchRefusedCount").setText(QString::number(bad));
    FindControl<QWidget>(this, "batchMatched").setVisible(good > 0);
    FindControl<QWidget>(this, "batchRefused").setVisible(bad > 0);
    for (const char* name : {"batchCopy", "batchProblems"})
        FindControl<QPushButton>(this, name).setVisible(bad > 0);
    _matched->show(_result.matched);
    _refused->show(_result.refused, _words);
    fitLists();
}

void BatchDialog::fitLists() {
    constexpr int border = 2;
    constexpr int columns = 9;
    const int matched = (static_cast<int>(_result.matched.size()) + columns - 1) / columns;
    const int step = MatchedPictures::side + _matched->gap();
    FindControl<QWidget>(this, "batchMatchedView")
        .setFixedHeight(std::clamp(matched, 1, mostMatchedRows) * step - _matched->gap());
    const int refused = std::clamp(static_cast<int>(_result.refused.size()), 1, mostRefusedRows);
    FindControl<QWidget>(this, "batchRefusedView").setFixedHeight(refused * RefusedPictures::height);
    FindControl<QWidget>(this, "batchRefusedCard").setFixedHeight(refused * RefusedPictures::height + border);
    adjustSize();
}

void BatchDialog::setStored(int index, const BatchMatch& match) {
    _result.refused.erase(_result.refused.begin() + index);
    _words.erase(_words.begin() + index);
    _result.matched.push_back(match);
    say();
}

void BatchDialog::setReason(int index, const QString& words) {
    _words[static_cast<std::size_t>(index)] = words;
    _refused->show(_result.refused, _words);
}

void BatchDialog::copyList() {
    QGuiApplication::clipboard()->setText(refusalList(_result));
}

} // namespace zdt
