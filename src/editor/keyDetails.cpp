#include "editor/keyDetails.h"

#include "editor/keyListSource.h"
#include "editor/moduleWords.h"
#include "kit/checker.h"
#include "kit/colourText.h"
#include "kit/localisation.h"
#include "kit/swatch.h"
#include "kit/tokens.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace zdt {

namespace {

constexpr int previewHeight = 200;
constexpr int labelWidth = 88;
constexpr int factPadding = 7;
constexpr int smallSwatch = 16;
constexpr int opaque = 255;
/// Characters of a text that are shown; the row's field has all of it.
constexpr qsizetype mostShown = 300;

QString colourWords(const QColor& colour) {
    const QString digits = "#" + shownDigits(colour);
    return colour.alpha() == opaque ? digits : QString("%1  %2%").arg(digits).arg(percentOf(colour));
}

/// A line of a long path or name may end behind these signs.
QString breakable(QString text) {
    if (text.size() > mostShown)
        text = text.first(mostShown) + QChar(0x2026);
    // A word that is too long for a line without any of them is broken anywhere.
    static const QRegularExpression longWord(R"(([^\s/_.]{24}))");
    text.replace(longWord, QStringLiteral(u"\\1\u200b"));
    for (const char* sign : {"/", "_", "."})
        text.replace(sign, QString(sign) + QChar(0x200b));
    return text;
}

KeyFact valueFact(const char* label, const KeyRow& row, const std::string& value) {
    KeyFact fact{Text(label), {}, {}, true};
    if (isFile(row.kind)) {
        fact.value = fileFacts(value);
        fact.isMono = false;
    } else if (const auto colour =
                   row.kind == KeyKind::colour ? colourOf(QString::fromStdString(value)) : std::nullopt) {
        fact.colour = colour;
        fact.value = colourWords(*colour);
    } else {
        fact.value = QString::fromStdString(value);
    }
    if (fact.value.isEmpty()) {
        fact.value = Text(isFile(row.kind) ? "kList_no_file" : "kList_empty_value");
        fact.isMono = false;
    }
    return fact;
}

QString generationWords(TypeMask generations) {
    QStringList words;
    for (const auto& [bit, word] : {std::pair{typeMask::generation5, "5.0"}, std::pair{typeMask::generation8, "8.0"},
                                    std::pair{typeMask::generation9, "9.1"}}) {
        if ((generations & bit) != 0)
            words.append(word);
    }
    return words.join(listSeparator());
}

QPixmap swatchPixmap(const QColor& colour, double ratio) {
    QPixmap picture(QSize(smallSwatch, smallSwatch) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintSwatch(painter, QRectF(0, 0, smallSwatch, smallSwatch), colour, token::radiusField);
    return picture;
}

QLabel* factLabel(const QString& text, const char* type) {
    auto* label = new QLabel(text);
    label->setProperty("type", type);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QWidget* factRow(const KeyFact& fact) {
    auto* row = new QWidget;
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, factPadding, 0, factPadding);
    line->setSpacing(0);
    QLabel* name = factLabel(fact.label, "hint");
    name->setFixedWidth(labelWidth);
    line->addWidget(name, 0, Qt::AlignTop);
    if (fact.colour) {
        auto* swatch = new QLabel;
        swatch->setPixmap(swatchPixmap(*fact.colour, row->devicePixelRatioF()));
        line->addWidget(swatch, 0, Qt::AlignTop);
        line->addSpacing(6);
    }
    QLabel* value = factLabel(breakable(fact.value), fact.isMono ? "mono" : "small");
    value->setObjectName("factValue");
    value->setAccessibleName(fact.label + " " + fact.value);
    line->addWidget(value, 1, Qt::AlignTop);
    return row;
}

} // namespace

KeyPreview::KeyPreview(QWidget* parent)
    : QWidget(parent) {
    setFixedHeight(previewHeight);
}

void KeyPreview::showColour(const QColor& colour) {
    _colour = colour;
    _picture = {};
    update();
}

void KeyPreview::showPicture(const QImage& picture) {
    _colour.reset();
    _picture = picture;
    _picture.setDevicePixelRatio(devicePixelRatioF());
    update();
}

void KeyPreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (_colour) {
        paintSwatch(painter, rect(), *_colour, token::radiusCard);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), token::radiusCard, token::radiusCard);
    painter.setClipPath(shape);
    paintChecker(painter, rect());
    const QSizeF size = _picture.deviceIndependentSize();
    painter.drawImage(QRectF(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size), _picture);
    painter.setClipping(false);
    painter.setPen(token::hairline);
    painter.drawPath(shape);
}

std::vector<KeyFact> factsOf(const KeyRow& row, const KeyWords& words,
                             const std::vector<std::pair<std::string, std::string>>& copies) {
    std::vector<KeyFact> facts;
    const auto add = [&](const char* label, const QString& value, bool isMono = false) {
        if (!value.isEmpty())
            facts.push_back({Text(label), value, {}, isMono});
    };
    add("kList_fact_meaning", words.meaning);
    if (row.isDrawn)
        add("kList_fact_origin", Text("kList_drawn"));
    facts.push_back(valueFact("kList_fact_value", row, row.value()));
    facts.push_back(valueFact("kList_fact_default", row, row.fallback()));
    add("kList_fact_file", QString::fromStdString(row.places.front().file), true);
    if (isFile(row.kind)) {
        add("kList_fact_kind", kindWords(row));
        add("kList_fact_size", sizeWords(row));
        add("kList_fact_limit", row.maxBytes > 0 ? bytesWords(row.maxBytes) : QString());
    }
    add("kList_fact_generations", generationWords(row.generations));
    add("kList_fact_applies", words.places);
    if (!copies.empty())
        add("kList_fact_differs", Text("kList_differs"));
    for (const auto& [module, value] : copies) {
        KeyFact fact = valueFact("kList_fact_value", row, value);
        fact.label = moduleWord(module);
        facts.push_back(fact);
    }
    return facts;
}

KeyFacts::KeyFacts(QWidget* parent)
    : QWidget(parent)
    , _column(new QVBoxLayout(this)) {
    _column->setContentsMargins(0, 0, 0, 0);
    _column->setSpacing(0);
}

void KeyFacts::setFacts(const std::vector<KeyFact>& facts) {
    while (QLayoutItem* item = _column->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const KeyFact& fact : facts) {
        _column->addWidget(factRow(fact));
        auto* line = new QWidget;
        line->setFixedHeight(1);
        line->setProperty("region", "line");
        line->setAttribute(Qt::WA_StyledBackground);
        _column->addWidget(line);
    }
}

} // namespace zdt
