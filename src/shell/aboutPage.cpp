#include "shell/aboutPage.h"

#include "kit/labels.h"
#include "kit/localisation.h"
#include "shell/programIcon.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>

namespace zdt {

namespace {

constexpr int logoSide = 48;

} // namespace

CAboutPage::CAboutPage(Workbench& bench, QWidget* parent)
    : ZPage(bench, "about.xml", parent)
    , _tool(control<QLabel>("aboutTool")) {
    control<QLabel>("aboutLogo").setPixmap(programIcon().pixmap(QSize(logoSide, logoSide), devicePixelRatioF()));
    control<ZElidedLabel>("aboutFolder").setElideMode(Qt::ElideMiddle);
    control<ZElidedLabel>("aboutFolder")
        .setText(QDir(QString::fromStdString(bench.root() + "res")).absolutePath());
    control<ZElidedLabel>("aboutQt").setText(QString("Qt %1").arg(qVersion()));
    control<ZElidedLabel>("aboutLibraries").setText("libzip, tinyxml2, RE2");
    connect(&control<QPushButton>("ThemesBtn"), &QPushButton::clicked, this, &CAboutPage::themesRequested);
    connect(&control<QPushButton>("aboutOpenFolder"), &QPushButton::clicked, this, &CAboutPage::folderRequested);
    reload();
}

void CAboutPage::reload() {
    _tool.setText(Text("kZDTheme_edit_tool"));
}

} // namespace zdt
