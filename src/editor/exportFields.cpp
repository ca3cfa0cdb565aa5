#include "editor/exportFields.h"

#include "editor/helpTip.h"
#include "editor/stateLine.h"
#include "kit/controlSearch.h"
#include "kit/kitStyle.h"
#include "kit/layoutError.h"
#include "kit/localisation.h"
#include "support/text.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QFocusEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpressionValidator>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

#include <set>

namespace zdt {

namespace {

constexpr int checkDelay = 300; // Milliseconds behind the last key.
constexpr std::array<const char*, 3> targetButtons{"OVUI5Btn", "OVUI8Btn", "OVUI9Btn"};

/// Without characters that a description can't hold.
std::string storable(QString text) {
    text.removeIf([](QChar sign) {
        const bool isBreak = sign == '\n' || sign == '\t';
        return (sign.category() == QChar::Other_Control && !isBreak) || sign.unicode() >= 0xFFFE;
    });
    return text.toStdString();
}

std::string nameOf(const QLineEdit& field) {
    return storable(field.text().trimmed());
}

QString digitsOf(const std::string& text) {
    QString digits = QString::fromStdString(text);
    digits.removeIf([](QChar sign) { return sign < '0' || sign > '9'; });
    return digits;
}

} // namespace

ExportFields::ExportFields(QWidget& page)
    : _page(page)
    , _englishName(FindControl<QLineEdit>(&page, "ResOutDlgENThemeName"))
    , _chineseName(FindControl<QLineEdit>(&page, "ResOutDlgCHThemeName"))
    , _developer(FindControl<QLineEdit>(&page, "ResOutDlgDeveloper"))
    , _designer(FindControl<QLineEdit>(&page, "ResOutDlgDesigner"))
    , _version(FindControl<QLineEdit>(&page, "ResOutDlgThemeVersion"))
    , _summary(FindControl<QPlainTextEdit>(&page, "ResOutDlgSummary"))
    , _prefix(FindControl<QLabel>(&page, "ResOutDlgVersionPrefix"))
    , _hint(FindControl<QLabel>(&page, "ResOutDlgHint"))
    , _count(FindControl<QLabel>(&page, "summaryCount"))
    , _targets(new QButtonGroup(this))
    , _fields{{{&_englishName, &FindControl<StateLine>(&page, "noteENThemeName")},
               {&_chineseName, &FindControl<StateLine>(&page, "noteCHThemeName")},
               {&_developer, &FindControl<StateLine>(&page, "noteDeveloper")},
               {&_designer, &FindControl<StateLine>(&page, "noteDesigner")},
               {&FindControl<QWidget>(&page, "ResOutDlgOVUIVersion"), &FindControl<StateLine>(&page, "noteTarget")},
               {&_version, &FindControl<StateLine>(&page, "noteThemeVersion")},
               {&_summary, &FindControl<StateLine>(&page, "noteSummary")}}} {
    _targets->setObjectName("newcheckgroup");
    for (unsigned generation = 0; generation < targetButtons.size(); ++generation) {
        auto& button = FindControl<QAbstractButton>(&page, targetButtons[generation]);
        button.setText(QString::fromUtf8(exportTarget(generation).label));
        _targets->addButton(&button, static_cast<int>(generation));
    }
    constexpr int longestVersion = 9; // Digits; more than any number of 32 bits can be sure to hold.
    _version.setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), &_version));
    _version.setMaxLength(longestVersion);
    _version.installEventFilter(this);
    _summary.setTabChangesFocus(true);
    _summary.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    keepWidth();
    _checkSoon.setSingleShot(true);
    _checkSoon.setInterval(checkDelay);
    listen();
    addHelp("ResOutDlgENThemeName", "kExport_theme_edit_notice_EN");
    addHelp("ResOutDlgCHThemeName", "kExport_theme_edit_notice_CN");
    addHelp("ResOutDlgDeveloper", "kExport_theme_edit_notice_DEV");
    addHelp("ResOutDlgDesigner", "kExport_theme_edit_notice_DES");
    addHelp("ResOutDlgOVUIVersion", "kExport_help_target");
    addHelp("ResOutDlgThemeVersion", {});
    addHelp("ResOutDlgSummary", "kExport_help_summary");
    addHelp("ResEditOutPutThemeList", "kExport_screenshot_tip");
}

void ExportFields::keepWidth() {
    // The scroll bar lies in the padding, so that no field becomes narrower when it comes.
    auto& area = FindControl<QScrollArea>(&_page, "exportFormScroll");
    QScrollBar* bar = area.verticalScrollBar();
    QLayout* form = area.widget() ? area.widget()->layout() : nullptr;
    if (!form)
        throw LayoutError("\"exportFormScroll\" holds no widget with a layout");
    const QMargins margins = form->contentsMargins();
    connect(bar, &QScrollBar::rangeChanged, form, [bar, form, margins](int first, int last) {
        const int barWidth = last > first ? bar->sizeHint().width() : 0;
        form->setContentsMargins(margins - QMargins(0, 0, barWidth, 0));
    });
}

void ExportFields::listen() {
    connect(&_checkSoon, &QTimer::timeout, this, &ExportFields::check);
    for (QLineEdit* field : {&_englishName, &_chineseName, &_developer, &_designer, &_version}) {
        connect(field, &QLineEdit::textEdited, this, [this] { _checkSoon.start(); });
        connect(field, &QLineEdit::returnPressed, this, &ExportFields::confirmed);
    }
    connect(&_summary, &QPlainTextEdit::textChanged, this, [this] {
        sayCount();
        _checkSoon.start();
    });
    connect(_targets, &QButtonGroup::idToggled, this, [this](int generation, bool isOn) {
        if (isOn)
            chooseTarget(static_cast<unsigned>(generation));
    });
}

void ExportFields::addHelp(const QString& field, const QString& key) {
    auto& button = FindControl<QToolButton>(&_page, field + "_Btn");
    connect(&button, &QToolButton::clicked, this, [this, &button, key] {
        const int chosen = _targets->checkedId();
        const QString hint = chosen < 0 ? "kExport_short_target"
                                        : QString::fromUtf8(exportTarget(static_cast<unsigned>(chosen)).hintKey);
        HelpTip::show(button, Text(key.isEmpty() ? hint : key));
    });
}

void ExportFields::fill(const ExportForm& form, bool hasVideoLock) {
    _englishName.setText(QString::fromStdString(form.englishName));
    _chineseName.setText(QString::fromStdString(form.chineseName));
    _developer.setText(QString::fromStdString(form.developer));
    _designer.setText(QString::fromStdString(form.designer));
    _version.setText(digitsOf(form.themeVersion));
    _summary.setPlainText(QString::fromStdString(form.summary));
    // A group in which one must be chosen lets none be unchosen.
    _targets->setExclusive(false);
    for (QAbstractButton* button : _targets->buttons())
        button->setChecked(false);
    _targets->setExclusive(true);
    if (form.generation)
        _targets->button(static_cast<int>(*form.generation))->setChecked(true);
    setVideoLock(hasVideoLock);
    _checkSoon.stop();
    retell();
}

void ExportFields::setVideoLock(bool hasVideoLock) {
    QAbstractButton* oldest = _targets->button(0);
    oldest->setEnabled(!hasVideoLock);
    oldest->setProperty("toolTipKey", hasVideoLock ? "kExport_no_video" : "kExport_help_target");
    if (!hasVideoLock || !oldest->isChecked())
        return;
    _targets->setExclusive(false);
    oldest->setChecked(false);
    _targets->setExclusive(true);
    sayTarget();
    check();
}

bool ExportFields::isInVersion() const {
    return _page.window()->focusWidget() == &_version;
}

void ExportFields::setAsking(bool isAsking) {
    if (isAsking)
        _wasInVersion = isInVersion();
    _isAsking = isAsking;
    if (!isAsking && _wasInVersion && !isInVersion())
        leaveVersion();
}

ExportForm ExportFields::form() const {
    ExportForm form{nameOf(_englishName),
                    nameOf(_chineseName),
                    nameOf(_developer),
                    nameOf(_designer),
                    {},
                    _version.text().toStdString(),
                    storable(_summary.toPlainText())};
    if (const int chosen = _targets->checkedId(); chosen >= 0)
        form.generation = static_cast<unsigned>(chosen);
    return form;
}

void ExportFields::chooseTarget(unsigned generation) {
    _version.setText(QString::fromStdString(versionForTarget(_version.text().toStdString(), generation)));
    sayTarget();
    check();
}

void ExportFields::leaveVersion() {
    const int chosen = _targets->checkedId();
    if (chosen < 0 || _isAsking)
        return;
    const std::string typed = _version.text().toStdString();
    const std::string kept = versionWhenLeft(typed, static_cast<unsigned>(chosen));
    if (kept != typed)
        _version.setText(QString::fromStdString(kept));
    check();
}

bool ExportFields::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        // A menu over the field, or another window, is no leaving: the author comes back to what was typed.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            leaveVersion();
    }
    return QObject::eventFilter(watched, event);
}

void ExportFields::check() {
    std::array<QString, exportFieldCount> notes;
    for (const FormProblem& problem : exportProblems(form())) {
        QString& note = notes[static_cast<std::size_t>(problem.field)];
        if (note.isEmpty())
            note = Text(QString::fromUtf8(shortMessage(problem)));
    }
    for (std::size_t index = 0; index < notes.size(); ++index) {
        const QString state = notes[index].isEmpty() ? QString() : "error";
        setStyleProperty(_fields[index].control, "state", state);
        _fields[index].control->setAccessibleDescription(notes[index]);
        _fields[index].note->tell(state, notes[index]);
    }
    emit checked();
}

int ExportFields::wrongFields() const {
    std::set<ExportField> wrong;
    for (const FormProblem& problem : exportProblems(form()))
        wrong.insert(problem.field);
    return static_cast<int>(wrong.size());
}

void ExportFields::sayTarget() {
    const int chosen = _targets->checkedId();
    const ExportTarget* target = chosen < 0 ? nullptr : &exportTarget(static_cast<unsigned>(chosen));
    _prefix.setText(target ? QString::fromUtf8(target->versionPrefix) : QString());
    _prefix.setVisible(target);
    setStyleProperty(&_version, "joined", target != nullptr);
    _hint.setText(Text(target ? QString::fromUtf8(target->hintKey) : "kExport_short_target"));
}

void ExportFields::sayCount() {
    _count.setText(TextWith("kExport_characters", static_cast<int>(toCodePoints(form().summary).size())));
}

void ExportFields::retell() {
    QAbstractButton* oldest = _targets->button(0);
    oldest->setToolTip(Text(oldest->property("toolTipKey").toString()));
    sayTarget();
    sayCount();
    check();
}

void ExportFields::focus(ExportField field) {
    QWidget* control = fieldOf(field).control;
    if (field == ExportField::target) {
        for (QAbstractButton* button : _targets->buttons()) {
            if (button->isEnabled())
                control = button;
        }
    }
    FindControl<QScrollArea>(&_page, "exportFormScroll").ensureWidgetVisible(control);
    control->setFocus(Qt::OtherFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(control))
        line->selectAll();
}

} // namespace zdt
