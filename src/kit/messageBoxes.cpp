#include "kit/messageBoxes.h"

#include "kit/localisation.h"

namespace zdt {

namespace {

ZMessageBoxDlg::Message message(ZMessageBoxDlg::Kind kind, const QString& textKey, const QStringList& arguments) {
    ZMessageBoxDlg::Message made;
    made.kind = kind;
    made.titleKey = "kDialog_Title_Waning_Info";
    made.textKey = textKey;
    made.arguments = arguments;
    made.acceptKey = "kConfirm";
    return made;
}

} // namespace

void tellNote(QWidget* parent, const QString& textKey, const QStringList& arguments, ZMessageBoxDlg::Kind kind) {
    ZMessageBoxDlg::tell(message(kind, textKey, arguments), Text, parent);
}

bool askYesNo(QWidget* parent, const QString& textKey, const QStringList& arguments, bool refusesByDefault) {
    ZMessageBoxDlg::Message question = message(ZMessageBoxDlg::Kind::Question, textKey, arguments);
    question.acceptKey = "kWindow_yes";
    question.rejectKey = "kWindow_no";
    question.rejectByDefault = refusesByDefault;
    return ZMessageBoxDlg::ask(question, Text, parent);
}

} // namespace zdt
