#include "kit/kitStyle.h"

#include "kit/focusRing.h"
#include "kit/fonts.h"
#include "kit/icons.h"
#include "kit/tokens.h"

#include <QAbstractButton>
#include <QApplication>
#include <QBitmap>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QSettings>
#include <QStandardPaths>
#include <QStyle>
#include <QStyleFactory>
#include <QStyledItemDelegate>
#include <QWidget>

namespace zdt {

namespace {

/// The style sheet leaves 4 between icon and text; the rest of the 6 belongs to the icon.
constexpr int iconGap = 2;
/// The rows of a navigation have 12.
constexpr int navigationGap = 8;

void applyPalette(QApplication& application) {
    QPalette palette;
    palette.setColor(QPalette::Window, token::window);
    palette.setColor(QPalette::WindowText, token::text);
    palette.setColor(QPalette::Base, token::card);
    palette.setColor(QPalette::Text, token::text);
    palette.setColor(QPalette::ButtonText, token::text);
    palette.setColor(QPalette::PlaceholderText, token::placeholder);
    palette.setColor(QPalette::Highlight, token::toggleBorder);
    palette.setColor(QPalette::HighlightedText, token::text);
    palette.setColor(QPalette::Link, token::accentText);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, token::textOff);
    application.setPalette(palette);
}

QColor plainColour(const QString& kind) {
    if (kind == "filled")
        return token::card;
    if (kind == "navigation")
        return token::iconNavigation;
    return kind == "danger" ? token::dangerText : token::iconPlain;
}

void iconByName(QAbstractButton& button) {
    const auto which = iconNamed(button.property("iconName").toString());
    const QVariant size = button.property("iconSizePixels");
    if (which)
        setButtonIcon(&button, *which, size.isValid() ? size.toInt() : 18);
}

bool settingsSay(const QString& file, const QString& key, const QString& value) {
    const QString path = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, file);
    return !path.isEmpty() && QSettings(path, QSettings::IniFormat).value(key).toString() == value;
}

bool askedForLessMotion() {
    return settingsSay("gtk-4.0/settings.ini", "Settings/gtk-enable-animations", "false") ||
           settingsSay("gtk-3.0/settings.ini", "Settings/gtk-enable-animations", "false") ||
           settingsSay("kdeglobals", "KDE/AnimationDurationFactor", "0");
}

} // namespace

bool applyKitStyle(QApplication& application, const QStringList& skinFolders) {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setFont(textFont(token::textBody));
    applyPalette(application);
    QDir::setSearchPaths("skin", skinFolders);
    FocusRing::install(application);
    QFile sheet("skin:style.qss");
    if (!sheet.open(QIODevice::ReadOnly))
        return false;
    application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
    return true;
}

void setStyleProperty(QWidget* widget, const char* name, const QVariant& value) {
    if (widget->property(name) == value)
        return;
    widget->setProperty(name, value);
    if (!widget->testAttribute(Qt::WA_WState_Polished)) // It is dressed when it is first shown.
        return;
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

void setButtonIcon(QAbstractButton* button, Icon which, int size) {
    const QString kind = button->property("kind").toString();
    const bool marksChoice = kind == "toggle" || kind == "navigation";
    const int gap = kind == "navigation" ? navigationGap : iconGap;
    button->setIcon(icon(which, plainColour(kind), marksChoice ? token::accentText : plainColour(kind)));
    const bool alone = button->text().isEmpty() && !button->property("textKey").isValid();
    button->setIconSize(QSize(alone ? size : size + gap, size));
    setStyleProperty(button, "withIcon", alone ? "alone" : "text");
}

void polishControls(QWidget* root) {
    for (QAbstractButton* button : root->findChildren<QAbstractButton*>())
        iconByName(*button);
    // What is dropped is the window's: a field would take the address of a file for a text.
    for (QLineEdit* field : root->findChildren<QLineEdit*>())
        field->setAcceptDrops(false);
    for (QPlainTextEdit* field : root->findChildren<QPlainTextEdit*>())
        field->setAcceptDrops(false);
    // The delegate that combo boxes begin with draws items without the style sheet.
    for (QComboBox* box : root->findChildren<QComboBox*>())
        box->setItemDelegate(new QStyledItemDelegate(box));
}

bool reducedMotion() {
    static const bool reduced = askedForLessMotion();
    return reduced;
}

void roundCorners(QWidget* popup, int radius) {
    // Without a compositor, as is common on X11, a see-through corner is black; a mask is right everywhere.
    QBitmap mask(popup->size());
    mask.clear();
    QPainter painter(&mask);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(mask.rect(), radius, radius);
    painter.end();
    popup->setMask(mask);
}

} // namespace zdt
