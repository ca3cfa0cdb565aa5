#include "kit/messageBoxDlg.h"

#include "kit/icons.h"
#include "kit/tokens.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zdt {

namespace {

constexpr int boxWidth = 440;
constexpr int iconSide = 24;

struct Sign {
    Icon icon;
    QColor colour;
};

Sign signOf(ZMessageBoxDlg::Kind kind) {
    switch (kind) {
    case ZMessageBoxDlg::Kind::Info:
        return {Icon::Info, token::accentFill};
    case ZMessageBoxDlg::Kind::Success:
        return {Icon::CheckCircle, token::ok};
    case ZMessageBoxDlg::Kind::Question:
        return {Icon::HelpOutline, token::accentFill};
    case ZMessageBoxDlg::Kind::Warning:
        return {Icon::Warning, token::warn};
    case ZMessageBoxDlg::Kind::Error:
        return {Icon::Error, token::danger};
    }
    return {Icon::Info, token::accentFill};
}

/// One pass over the text: an argument that itself holds `%2` stays as it is.
QString filled(const QString& text, const QStringList& arguments) {
    QString result;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const int digit = text[at] == '%' && at + 1 < text.size() ? text[at + 1].digitValue() : -1;
        if (digit >= 1 && digit <= arguments.size()) {
            result += arguments[digit - 1];
            ++at;
        } else {
            result += text[at];
        }
    }
    return result;
}

QLabel* messageText(const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName("messageText");
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setFocusPolicy(Qt::NoFocus);
    label->setMinimumHeight(iconSide);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // The first line stands beside the middle of the icon.
    label->setContentsMargins(0, 4, 0, 0);
    return label;
}

} // namespace

ZMessageBoxDlg::ZMessageBoxDlg(const Message& message, const TextLookup& lookup, QWidget* parent)
    : ZBaseDialog(parent) {
    setFixedWidth(boxWidth);
    setTitle(lookup(message.titleKey));
    setCloseTip(lookup("kWindow_close"));
    const QString text = filled(lookup(message.textKey), message.arguments);
    setAccessibleDescription(text);
    const Sign sign = signOf(message.kind);
    auto* picture = new QLabel;
    picture->setPixmap(iconPixmap(sign.icon, sign.colour, iconSide, devicePixelRatioF()));
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addWidget(messageText(text), 1);
    body()->addLayout(row);

    const bool refusing = message.rejectByDefault && !message.rejectKey.isEmpty();
    QPushButton* reject = message.rejectKey.isEmpty() ? nullptr : addButton(lookup(message.rejectKey), "messageReject");
    QPushButton* accept = addButton(lookup(message.acceptKey), "messageAccept", refusing ? "danger" : "filled");
    connect(accept, &QPushButton::clicked, this, &QDialog::accept);
    if (reject)
        connect(reject, &QPushButton::clicked, this, &QDialog::reject);
    QPushButton* first = refusing ? reject : accept;
    first->setDefault(true);
    first->setFocus();
}

bool ZMessageBoxDlg::ask(const Message& message, const TextLookup& lookup, QWidget* parent) {
    return ZMessageBoxDlg(message, lookup, parent).exec() == Accepted || message.rejectKey.isEmpty();
}

void ZMessageBoxDlg::tell(const Message& message, const TextLookup& lookup, QWidget* parent) {
    ZMessageBoxDlg(message, lookup, parent).exec();
}

} // namespace zdt
