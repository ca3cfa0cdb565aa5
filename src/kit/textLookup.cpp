#include "kit/textLookup.h"

#include <QVariant>
#include <QWidget>

#include <array>

namespace zdt {

namespace {

struct Labelled {
    const char* key;
    /// The properties that take the text; a widget has at most one of them.
    std::array<const char*, 2> targets;
};

constexpr std::array labelled{
    Labelled{"textKey", {"text", "title"}},
    Labelled{"toolTipKey", {"toolTip", nullptr}},
    Labelled{"placeholderKey", {"placeholderText", nullptr}},
    Labelled{"titleKey", {"title", "windowTitle"}},
    Labelled{"accessibleKey", {"accessibleName", nullptr}},
};

bool has(const QWidget& widget, const char* property) {
    return property && widget.metaObject()->indexOfProperty(property) >= 0;
}

void label(QWidget& widget, const Labelled& row, const TextLookup& lookup) {
    const QString key = widget.property(row.key).toString();
    if (key.isEmpty())
        return;
    for (const char* target : row.targets) {
        if (has(widget, target)) {
            widget.setProperty(target, lookup(key));
            return;
        }
    }
}

void labelParts(QWidget& widget, const TextLookup& lookup) {
    QStringList labels;
    for (const QString& key : widget.property("labelKeys").toStringList())
        labels += lookup(key);
    if (!labels.isEmpty() && has(widget, "labels"))
        widget.setProperty("labels", labels);
}

void nameAfterToolTip(QWidget& widget) {
    const bool named = widget.property("accessibleKey").isValid() || !widget.property("text").toString().isEmpty();
    if (!named && widget.property("toolTipKey").isValid())
        widget.setAccessibleName(widget.toolTip());
}

void labelOne(QWidget& widget, const TextLookup& lookup) {
    for (const Labelled& row : labelled)
        label(widget, row, lookup);
    labelParts(widget, lookup);
    nameAfterToolTip(widget);
}

} // namespace

void relabel(QWidget* root, const TextLookup& lookup) {
    labelOne(*root, lookup);
    for (QWidget* widget : root->findChildren<QWidget*>())
        labelOne(*widget, lookup);
}

} // namespace zdt
