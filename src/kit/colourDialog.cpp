#include "kit/colourDialog.h"

#include "kit/colourEdits.h"
#include "kit/colourText.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/swatch.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zdt {

namespace {

constexpr int dialogWidth = 320;
constexpr int swatchesInRow = 10;
constexpr int swatchGap = 5;
constexpr int themeColourLimit = 2 * swatchesInRow;
constexpr int hexWidth = 104;
constexpr int percentWidth = 68;

QList<QColor>& recent() {
    static QList<QColor> colours;
    return colours;
}

void remember(const QColor& colour) {
    recent().removeAll(colour);
    recent().prepend(colour);
    if (recent().size() > ZColourDialog::recentCount)
        recent().removeLast();
}

QList<QColor> withoutDoubles(const QList<QColor>& colours) {
    QList<QColor> result;
    for (const QColor& colour : colours) {
        if (!result.contains(colour.toRgb()) && result.size() < themeColourLimit)
            result.append(colour.toRgb());
    }
    return result;
}

template <typename Control>
Control* named(Control* control, const char* name, const QString& words) {
    control->setObjectName(name);
    control->setAccessibleName(words);
    control->setToolTip(words);
    return control;
}

} // namespace

ZColourDialog::ZColourDialog(const Request& request, const TextLookup& lookup, QWidget* parent)
    : ZBaseDialog(parent)
    , _before(request.colour.toRgb())
    , _colour(_before)
    , _square(named(new ColourSquare, "colourSquare", lookup("kColour_square"))) {
    setFixedWidth(dialogWidth);
    setTitle(lookup("kColour_title"));
    setCloseTip(lookup("kCancel"));
    body()->setSpacing(12);
    body()->addWidget(_square);
    addStrips(request, lookup);
    addFields(request, lookup);
    addSwatches(lookup("kColour_in_theme"), withoutDoubles(request.themeColours), "themeColour");
    addSwatches(lookup("kColour_recent"), recent(), "recentColour");
    addButtons(lookup);

    connect(_square, &ColourSquare::moved, this, [this](int saturation, int value) {
        _now.saturation = saturation;
        _now.value = value;
        takeMoved();
    });
    _now.goTo(_colour);
    showColour(nullptr);
    _hex->setFocus();
    _hex->selectAll();
}

void ZColourDialog::addStrips(const Request& request, const TextLookup& lookup) {
    _comparison = new ColourComparison(request.colour);
    _comparison->setToolTip(lookup("kColour_comparison"));
    _hue = named(new ColourSlider(ColourSlider::Kind::hue), "colourHue", lookup("kColour_hue"));
    _alpha = named(new ColourSlider(ColourSlider::Kind::alpha), "colourAlpha", lookup("kColour_alpha"));
    auto* strips = new QVBoxLayout;
    strips->setSpacing(6);
    strips->addWidget(_hue);
    strips->addWidget(_alpha);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(_comparison);
    row->addLayout(strips, 1);
    body()->addLayout(row);
    // Their signals are told from the author's by the value alone: what is shown already isn't a move.
    connect(_hue, &QAbstractSlider::valueChanged, this, [this](int hue) {
        if (hue == _now.hue)
            return;
        _now.hue = hue;
        takeMoved();
    });
    connect(_alpha, &QAbstractSlider::valueChanged, this, [this](int alpha) {
        if (alpha == _colour.alpha())
            return;
        QColor colour = _colour;
        colour.setAlpha(alpha);
        take(colour);
    });
}

void ZColourDialog::addFields(const Request& request, const TextLookup& lookup) {
    _hex = named(new ZHexField, "colourHex", lookup("kColour_hex"));
    _hex->setProperty("scale", "small");
    _hex->setFixedWidth(hexWidth);
    _percent = named(new ZPercentField, "colourPercent", lookup("kColour_percent"));
    _percent->setProperty("scale", "small");
    _percent->setFixedWidth(percentWidth);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(_hex);
    row->addWidget(_percent);
    row->addStretch();
    if (const std::optional<QColor> fallback = request.fallback) {
        auto* reset = named(new QPushButton, "colourReset", lookup("kColour_reset"));
        reset->setProperty("kind", "quiet");
        reset->setProperty("scale", "small");
        reset->setAutoDefault(false);
        setButtonIcon(reset, Icon::SettingsBackupRestore);
        connect(reset, &QPushButton::clicked, this, [this, fallback] { take(*fallback); });
        row->addWidget(reset);
    }
    body()->addLayout(row);
    _error = new QLabel(lookup("kColour_form"));
    _error->setObjectName("colourError");
    _error->setProperty("type", "hint");
    _error->setProperty("state", "error");
    _error->hide();
    body()->addWidget(_error);
    connect(_hex, &QLineEdit::textEdited, this, &ZColourDialog::typeDigits);
    connect(_hex, &QLineEdit::editingFinished, this, [this] {
        // Enter must find what is wrong still there.
        if (isWhole())
            showColour(nullptr);
    });
    connect(_percent, &QLineEdit::textEdited, this, &ZColourDialog::typePercent);
    connect(_percent, &QLineEdit::editingFinished, this, [this] { showColour(nullptr); });
}

void ZColourDialog::addSwatches(const QString& title, const QList<QColor>& colours, const QString& name) {
    if (colours.isEmpty())
        return;
    auto* column = new QVBoxLayout;
    column->setSpacing(6);
    auto* label = new QLabel(title);
    label->setProperty("type", "hint");
    column->addWidget(label);
    auto* grid = new QGridLayout;
    grid->setSpacing(swatchGap);
    grid->setColumnStretch(swatchesInRow, 1);
    for (int index = 0; index < colours.size(); ++index) {
        auto* swatch = new ZSwatch(colours[index]);
        swatch->setObjectName(name + QString::number(index));
        connect(swatch, &QAbstractButton::clicked, this, [this, swatch] { take(swatch->colour()); });
        grid->addWidget(swatch, index / swatchesInRow, index % swatchesInRow);
    }
    column->addLayout(grid);
    body()->addLayout(column);
}

void ZColourDialog::addButtons(const TextLookup& lookup) {
    QPushButton* cancel = addButton(lookup("kCancel"), "colourCancel");
    QPushButton* ok = addButton(lookup("kConfirm"), "colourAccept", "filled");
    cancel->setAutoDefault(false);
    ok->setDefault(true);
    connect(cancel, &QPushButton::clicked, this, &ZColourDialog::reject);
    connect(ok, &QPushButton::clicked, this, &ZColourDialog::accept);
}

void ZColourDialog::take(const QColor& colour, const QWidget* typedIn) {
    if (colour.rgba() == _colour.rgba())
        return;
    _colour = colour.toRgb();
    _now.goTo(_colour);
    showColour(typedIn);
    emit colourChanged(_colour);
}

void ZColourDialog::takeMoved() {
    const QColor moved = _now.colour().toRgb();
    const bool isOther = moved.rgba() != _colour.rgba();
    _colour = moved;
    showColour(nullptr);
    if (isOther)
        emit colourChanged(_colour);
}

void ZColourDialog::showColour(const QWidget* typedIn) {
    _square->setChoice(_now.hue, _now.saturation, _now.value);
    _hue->setValue(_now.hue);
    _alpha->setColour(_colour);
    _alpha->setValue(_colour.alpha());
    _comparison->setColour(_colour);
    if (typedIn != _hex && _hex->text() != shownDigits(_colour))
        _hex->setText(shownDigits(_colour));
    if (isWhole())
        showError(false);
    if (typedIn != _percent)
        _percent->setPercent(percentOf(_colour));
}

bool ZColourDialog::isWhole() const {
    return typedColour(_hex->text(), _colour).has_value();
}

void ZColourDialog::showError(bool isWrong) {
    if (isWrong == _error->isVisible())
        return;
    setStyleProperty(_hex, "state", isWrong ? "error" : "");
    _error->setVisible(isWrong);
    adjustSize();
}

void ZColourDialog::typeDigits(const QString& text) {
    showError(false);
    if (const std::optional<QColor> typed = typedColour(text, _colour))
        take(*typed, _hex);
}

void ZColourDialog::typePercent() {
    if (const std::optional<int> percent = _percent->percent())
        take(withPercent(_colour, *percent), _percent);
}

void ZColourDialog::accept() {
    if (!isWhole()) {
        showError(true);
        _hex->setFocus();
        _hex->selectAll();
        return;
    }
    remember(_colour);
    ZBaseDialog::accept();
}

void ZColourDialog::reject() {
    take(_before);
    ZBaseDialog::reject();
}

std::optional<QColor> ZColourDialog::choose(const Request& request, const TextLookup& lookup, QWidget* parent,
                                            const std::function<void(const QColor&)>& follow) {
    ZColourDialog dialog(request, lookup, parent);
    if (follow)
        connect(&dialog, &ZColourDialog::colourChanged, &dialog, follow);
    return dialog.exec() == Accepted ? std::optional(dialog.colour()) : std::nullopt;
}

QList<QColor> ZColourDialog::recentColours() {
    return recent();
}

} // namespace zdt
