#include "kit/searchField.h"

#include "kit/icons.h"
#include "kit/tokens.h"

#include <QAction>
#include <QKeyEvent>

namespace zdt {

namespace {
/// No name or value is longer; a pasted book would be looked for in every row.
constexpr int longest = 200;
} // namespace

ZSearchField::ZSearchField(QWidget* parent)
    : QLineEdit(parent)
    , _clear(new QAction(icon(Icon::Close, token::textSecond), {}, this)) {
    setProperty("kind", "search");
    setMaxLength(longest);
    addAction(icon(Icon::Search, token::textSecond), QLineEdit::LeadingPosition);
    addAction(_clear, QLineEdit::TrailingPosition);
    _clear->setVisible(false);
    connect(_clear, &QAction::triggered, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) { _clear->setVisible(!text.isEmpty()); });
}

void ZSearchField::setClearTip(const QString& tip) {
    _clear->setText(tip);
    _clear->setToolTip(tip);
}

void ZSearchField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clear();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace zdt
