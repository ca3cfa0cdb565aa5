#include "shell/newThemeDialog.h"

#include "editor/exportForm.h"
#include "kit/controlSearch.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/layoutError.h"
#include "kit/localisation.h"
#include "kit/optionCard.h"
#include "kit/textLookup.h"
#include "kit/tokens.h"
#include "model/template.h"
#include "packaging/pictureConversion.h"
#include "shell/newThemeRules.h"
#include "store/themeLayout.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

namespace zdt {

namespace {

constexpr int dialogWidth = 640;
/// Milliseconds after the last key.
constexpr int checkDelay = 300;
constexpr int signSide = 14;
constexpr int cardPicture = 64;
/// The picture of a template that stands for its phones: the home screen.
constexpr const char* cardPreview = "preview/preview_widget_0.jpg";

QPixmap phonePicture(const std::string& root, unsigned generation, double ratio) {
    constexpr int tallest = 2 * cardPicture;
    const std::string file = locateTemplate(root, generation) + cardPreview;
    QPixmap picture = QPixmap::fromImage(loadThumbnail(file, QSize(cardPicture, tallest) * ratio));
    picture.setDevicePixelRatio(ratio);
    return picture;
}

} // namespace

CNewThemeDialog::CNewThemeDialog(Workbench& bench, std::vector<std::string> taken, QWidget* parent)
    : ZBaseDialog(parent)
    , _taken(std::move(taken)) {
    SkinLoader::Result loaded = bench.layouts().load("newTheme.xml");
    if (!loaded.widget)
        throw LayoutError(loaded.error);
    body()->addWidget(loaded.widget.release());
    relabel(this, Text);
    setFixedWidth(dialogWidth);
    setTitle(Text("kNew_title"));
    setCloseTip(Text("kNew_close_tip"));
    makeFields();
    makeCards(storeRoot(bench.root()));
    makeButtons();
    _name.edit->setText(QString::fromStdString(freeThemeName(offeredThemeName, _taken)));
    _name.edit->selectAll();
    _name.edit->setFocus();
    checkName();
    checkChinese();
}

CNewThemeDialog::Field CNewThemeDialog::makeField(const char* edit, const char* sign, const char* words) {
    Field field{&FindControl<QLineEdit>(this, edit), &FindControl<QLabel>(this, sign),
                &FindControl<QLabel>(this, words), nullptr, new QTimer(this)};
    field.sign->setPixmap(iconPixmap(Icon::Error, token::danger, signSide, devicePixelRatioF()));
    field.fine = field.edit->addAction(icon(Icon::CheckCircle, token::ok), QLineEdit::TrailingPosition);
    field.soon->setSingleShot(true);
    field.soon->setInterval(checkDelay);
    connect(field.edit, &QLineEdit::textEdited, field.soon, qOverload<>(&QTimer::start));
    return field;
}

void CNewThemeDialog::makeFields() {
    _name = makeField("newEnglishName", "newEnglishSign", "newEnglishWords");
    _chinese = makeField("newChineseName", "newChineseSign", "newChineseWords");
    connect(_name.soon, &QTimer::timeout, this, &CNewThemeDialog::checkName);
    connect(_chinese.soon, &QTimer::timeout, this, &CNewThemeDialog::checkChinese);
}

void CNewThemeDialog::makeCards(const std::string& root) {
    for (unsigned index = 0; index < generationCount; ++index) {
        const GenerationCard& about = generationCards[index];
        auto* card = &FindControl<ZOptionCard>(this, QString::fromUtf8(about.control));
        QStringList lines{TextWith("kNew_screen", QString::fromUtf8(about.ratio)),
                          Text(QString::fromUtf8(about.keysKey))};
        if (about.isNewest)
            lines += Text("kNew_newest");
        card->setLines(lines);
        card->setPicture(phonePicture(root, index, devicePixelRatioF()));
        card->setChecked(about.isNewest);
        _generations[index] = card;
    }
    auto& big = FindControl<ZOptionCard>(this, "newBig");
    _small = &FindControl<ZOptionCard>(this, "newSmall");
    big.setLines({Text("kNew_big_covers")});
    _small->setLines({Text("kNew_small_covers")});
    big.setChecked(true);
}

void CNewThemeDialog::makeButtons() {
    setNote(Text("kNew_note"));
    QPushButton* cancel = addButton(Text("kCancel"), "newCancel");
    QPushButton* make = addButton(Text("kNew_create"), "newCreate", "filled");
    make->setDefault(true);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(make, &QPushButton::clicked, this, &CNewThemeDialog::create);
}

void CNewThemeDialog::say(const Field& field, Says how, const QString& textKey) {
    const bool isError = how == Says::error;
    field.words->setText(Text(textKey));
    setStyleProperty(field.words, "state", isError ? "error" : how == Says::fine ? "ok" : "");
    setStyleProperty(field.edit, "state", isError ? "error" : "");
    field.edit->setAccessibleDescription(field.words->text());
    field.sign->setVisible(isError);
    field.fine->setVisible(how == Says::fine);
}

bool CNewThemeDialog::checkName() {
    const std::string_view problem = newNameProblem(chosen().name, _taken);
    say(_name, problem.empty() ? Says::fine : Says::error,
        problem.empty() ? "kNew_name_free" : QString::fromUtf8(problem));
    return problem.empty();
}

bool CNewThemeDialog::checkChinese() {
    const std::string_view problem = checkChineseName(chosen().chineseName);
    const bool isFine = problem.empty();
    say(_chinese, isFine ? Says::hint : Says::error, QString::fromUtf8(chineseNameKey(problem)));
    return isFine;
}

ThemeWish CNewThemeDialog::chosen() const {
    ThemeWish theme{_name.edit->text().trimmed().toStdString(), _chinese.edit->text().trimmed().toStdString(), 0,
                    _small->isChecked()};
    for (unsigned index = 0; index < generationCount; ++index) {
        if (_generations[index]->isChecked())
            theme.generation = index;
    }
    return theme;
}

void CNewThemeDialog::create() {
    const bool nameIsFine = checkName();
    const bool chineseIsFine = checkChinese();
    if (nameIsFine && chineseIsFine) {
        accept();
        return;
    }
    QLineEdit* wrong = nameIsFine ? _chinese.edit : _name.edit;
    wrong->setFocus();
    wrong->selectAll();
}

std::optional<ThemeWish> CNewThemeDialog::ask(Workbench& bench, const std::vector<std::string>& taken,
                                              QWidget* parent) {
    CNewThemeDialog dialog(bench, taken, parent);
    return dialog.exec() == Accepted ? std::optional(dialog.chosen()) : std::nullopt;
}

} // namespace zdt
