#include "editor/previewBoard.h"

#include "editor/previewCard.h"
#include "kit/localisation.h"

#include <QFrame>
#include <QLabel>

#include <algorithm>

namespace zdt {

namespace {

constexpr int padding = 32;
constexpr int topPadding = 16;
constexpr int leastGap = 26;
constexpr int headHeight = 28;
constexpr int headGap = 12;
constexpr int rowGap = 24;

bool haveSameCards(const PreviewSection& one, const PreviewSection& other) {
    return one.name == other.name &&
           std::equal(one.pictures.begin(), one.pictures.end(), other.pictures.begin(), other.pictures.end(),
                      [](const auto& first, const auto& second) { return first.name == second.name; });
}

QLabel* headLabel(QWidget* box, const char* name, const char* type) {
    auto* label = new QLabel(box);
    label->setObjectName(name);
    label->setProperty("type", type);
    return label;
}

} // namespace

PreviewBoard::PreviewBoard(QWidget* parent)
    : QWidget(parent) {
    setMinimumWidth(2 * padding + PreviewCard::width);
}

void PreviewBoard::setSections(std::vector<PreviewSection> sections) {
    const bool isSame = std::equal(sections.begin(), sections.end(), _sections.begin(), _sections.end(), haveSameCards);
    _sections = std::move(sections);
    if (!isSame)
        rebuild();
    retell();
}

PreviewBoard::Group PreviewBoard::makeGroup(const PreviewSection& section) {
    Group group{new QWidget(this), nullptr, nullptr, nullptr, {}};
    group.box->setObjectName(QString::fromUtf8(section.name));
    group.caption = headLabel(group.box, "caption", "strongSmall");
    group.count = headLabel(group.box, "count", "hint");
    group.count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    group.line = new QFrame(group.box);
    group.line->setObjectName("headLine");
    for (const PreviewPicture& picture : section.pictures) {
        auto* card = new PreviewCard(QString::fromStdString(picture.name), section.isDrawn, group.box);
        connect(card, &PreviewCard::replaceAsked, this, &PreviewBoard::replaceAsked);
        connect(card, &PreviewCard::removeAsked, this, &PreviewBoard::removeAsked);
        connect(card, &PreviewCard::filesDropped, this, &PreviewBoard::filesDropped);
        connect(card, &PreviewCard::touched, this, &PreviewBoard::setCurrent);
        group.cards.push_back(card);
    }
    group.box->show();
    return group;
}

void PreviewBoard::rebuild() {
    for (const Group& group : _groups) {
        // A card may be waiting in a handler of its own; it is found no more, and goes when that is done.
        group.box->hide();
        group.box->setParent(nullptr);
        group.box->deleteLater();
    }
    _groups.clear();
    for (const PreviewSection& section : _sections)
        _groups.push_back(makeGroup(section));
    const PreviewCard* standing = card(_current);
    setCurrent(standing ? _current : QString());
    arrange();
}

void PreviewBoard::placeGroup(Group& group, const SectionPlace& place, int gap, int top) const {
    const int step = PreviewCard::width + gap;
    const int width = place.span * step - gap;
    const int height = headHeight + headGap + place.rows * (PreviewCard::height + rowGap) - rowGap;
    group.box->setGeometry(padding + place.column * step, top, width, height);
    group.caption->setGeometry(0, 0, width - 24, headHeight - 8);
    group.count->setGeometry(width - 24, 0, 24, headHeight - 8);
    group.line->setGeometry(0, headHeight - 1, width, 1);
    for (std::size_t index = 0; index < group.cards.size(); ++index) {
        const auto row = static_cast<int>(index) / place.span;
        const auto column = static_cast<int>(index) % place.span;
        group.cards[index]->move(column * step, headHeight + headGap + row * (PreviewCard::height + rowGap));
    }
}

int PreviewBoard::room() const {
    // In a scroll area the bar lies in the padding, so that nothing moves when it comes.
    const QWidget* area = parentWidget() ? parentWidget()->parentWidget() : nullptr;
    return (area ? area->width() : width()) - 2 * padding;
}

void PreviewBoard::arrange() {
    const int room = this->room();
    const int columns = std::max(1, (room + leastGap) / (PreviewCard::width + leastGap));
    const int gap = columns > 1 ? (room - columns * PreviewCard::width) / (columns - 1) : leastGap;
    std::vector<int> counts;
    for (const Group& group : _groups)
        counts.push_back(static_cast<int>(group.cards.size()));
    const std::vector<SectionPlace> places = placeSections(counts, columns);
    int top = topPadding;
    int bottom = top;
    for (std::size_t index = 0; index < places.size(); ++index) {
        if (index > 0 && places[index].row != places[index - 1].row)
            top = bottom + rowGap;
        placeGroup(_groups[index], places[index], gap, top);
        bottom = std::max(bottom, _groups[index].box->geometry().bottom() + 1);
    }
    setMinimumHeight(bottom + rowGap);
}

void PreviewBoard::resizeEvent(QResizeEvent*) {
    arrange();
}

PreviewCard* PreviewBoard::card(const QString& name) const {
    for (const Group& group : _groups) {
        for (PreviewCard* card : group.cards) {
            if (card->name() == name)
                return card;
        }
    }
    return nullptr;
}

void PreviewBoard::setCurrent(const QString& name) {
    if (PreviewCard* before = card(_current))
        before->setCurrent(false);
    _current = name;
    if (PreviewCard* now = card(_current))
        now->setCurrent(true);
}

void PreviewBoard::retell() {
    for (std::size_t index = 0; index < _groups.size(); ++index) {
        const PreviewSection& section = _sections[index];
        const QString module = Text(QString::fromUtf8(section.captionKey));
        _groups[index].caption->setText(module);
        _groups[index].count->setText(QString::number(section.pictures.size()));
        for (PreviewCard* card : _groups[index].cards) {
            const QString own = Text(card->name() + "_context");
            const QString number = QString::fromStdString(captionNumber(section, card->name().toStdString()));
            card->setCaption(!own.isEmpty() ? own : number.isEmpty() ? module : module + " " + number);
        }
    }
}

} // namespace zdt
