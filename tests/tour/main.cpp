/// Walks through the real window with a hand's clicks and keys: makes a theme, recolours all its screens, changes a key
/// and a picture in it, mends a problem and exports it, and saves a screenshot of every page in both languages.
///
///     zdt_window_tour OUT [WIDTHxHEIGHT]
///
/// OUT receives the package and the screenshots; OUT/store is the workspace, and must not be there yet. Exits with 0 if
/// every step found what it needed.
#include "kit/localisation.h"
#include "kit/workbench.h"
#include "shell/application.h"
#include "shell/mainFrame.h"
#include "store/themeResource.h"
#include "tour/palette.h"
#include "tour/script.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QStackedWidget>

#include <array>
#include <cstdio>
#include <string>

namespace {

using namespace zdt;

constexpr const char* themeName = "Lagoon";

QString themeFolder(const QString& out) {
    return out + "/store/res/" + themeName;
}

/// A picture of the author's own, for the browser's icon.
void drawIcon(const QString& path) {
    QImage icon(192, 192, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x12, 0x50, 0x5b));
    painter.drawRoundedRect(icon.rect().adjusted(4, 4, -4, -4), 44, 44);
    painter.setBrush(QColor(0xb8, 0xf2, 0xe6));
    painter.drawEllipse(QPointF(96, 96), 46, 46);
    painter.end();
    icon.save(path);
}

void addMaking(tour::Script& script) {
    script.shot("start-empty-en");
    script.click("firstNewBtn");
    script.type("newEnglishName", themeName);
    script.type("newChineseName", "潟湖");
    script.rest(400);
    script.shot("new-en");
    script.click("newCreate");
    script.waitFor("the editor", [] {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            const auto* tabs = top->findChild<QStackedWidget*>("MainFrameTab");
            if (tabs && tabs->currentIndex() == 1)
                return true;
        }
        return false;
    });
}

struct Module {
    const char* name;
    int screens;
};
constexpr std::array modules{Module{"commonSetting", 4}, Module{"launcher", 3}, Module{"contacts", 4}, Module{"mms", 4},
                             Module{"systemui", 3}};

/// Every screen of every module.
void addScreens(tour::Script& script, const QString& ending) {
    for (const Module& module : modules) {
        script.click(QString("nav_") + module.name);
        for (int screen = 0; screen < module.screens; ++screen) {
            script.key("screenStrip", screen == 0 ? Qt::Key_Home : Qt::Key_Down);
            script.rest(200);
            script.shot(QString("%1-%2-%3").arg(module.name).arg(screen).arg(ending));
        }
        script.key("screenStrip", Qt::Key_Home);
    }
}

void addRecolouring(tour::Script& script) {
    for (const tour::Recolour& recolour : tour::recolours) {
        const QString screen = recolour.screen;
        script.click("nav_" + screen.section('|', 0, 0));
        script.type(screen + "|" + recolour.item + "|color|Color_Edit", recolour.digits);
    }
}

void addChanging(tour::Script& script, const QString& out) {
    script.click("nav_contacts");
    script.click("contacts|dial|picture|option");
    script.shot("pictures-en");
    script.click("contacts|dial|pictures as");
    script.shot("pictures-grid-en");
    script.click("contacts|dial|pictures as");
    script.click("contacts|dial|color|option");
    script.click("nav_icons");
    script.type("keySearch", "com.android.browser.png");
    script.key("keySearch", Qt::Key_Down);
    script.click("detailReplace");
    script.choose(out + "/icon.png");
    script.shot("picture-en");
    script.type("keySearch", "");
    script.click("nav_all");
    script.shot("keys-en");
    script.type("keySearch", "message_pop_send_bg_color_theme_adapter");
    script.key("keySearch", Qt::Key_Down);
    script.key("keyList", Qt::Key_Return);
    script.type("editHex", "1C6E5A");
    script.shot("colour-en");
    script.key("editHex", Qt::Key_Return);
}

void addMending(tour::Script& script, const QString& out) {
    script.act("lose two pictures", [out] {
        QFile::remove(themeFolder(out) + "/icons/com.android.camera.png");
        QFile::resize(themeFolder(out) + "/icons/com.android.calendar.png", 10);
    });
    script.click("ResGlobleErrorBtn");
    script.click("problemCheckAgain");
    script.shot("problems-en");
    script.click("restore");
    script.click("restore");
    script.shot("problems-none-en");
}

void addExport(tour::Script& script, const QString& out) {
    script.click("exportBtn");
    script.rest(1500);
    script.type("ResOutDlgDeveloper", "The demonstration");
    script.type("ResOutDlgDesigner", "The demonstration");
    script.type("ResOutDlgSummary", "Clear water over white sand.");
    script.shot("export-en");
    script.click("ResOutDlgOKBtn");
    script.choose(out);
    script.waitFor("the package", [out] { return QFile::exists(out + "/" + themeName + ".zdt"); });
    script.rest(600);
    script.shot("exported-en");
    script.click("messageAccept");
}

/// Everything once more in the other language.
void addChinese(tour::Script& script) {
    script.click("ch_btn");
    addScreens(script, "cn");
    for (const char* name : {"icons", "unlock", "all"}) {
        script.click(QString("nav_") + name);
        script.shot(QString("%1-cn").arg(name));
    }
    script.click("ResGlobleErrorBtn");
    script.shot("problems-none-cn");
    script.click("exportBtn");
    script.rest(1500);
    script.shot("export-cn");
    script.click("btnClose");
    script.click("ResPreviewReturn");
    script.shot("start-cn");
    script.click("ThemeResNewBtn");
    script.shot("new-cn");
    script.click("newCancel");
    script.click("aboutBtn");
    script.shot("about-cn");
    script.click("aboutbackBtn");
    script.click("en_btn");
    script.click("aboutBtn");
    script.shot("about-en");
    script.click("ThemesBtn");
    script.shot("start-en");
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc < 2 || !QDir().mkpath(QString(argv[1]) + "/store")) {
        std::fputs("zdt_window_tour OUT [WIDTHxHEIGHT]\n", stderr);
        return 2;
    }
    const QString out = QDir(argv[1]).absolutePath();
    const QStringList size = QString(argc > 2 ? argv[2] : "1280x775").split('x');
    QDir::setCurrent(out + "/store");
    qputenv("LC_ALL", "C.UTF-8");
    QApplication application(argc, argv);
    drawIcon(out + "/icon.png");
    bool succeeded = false;
    const int code = runWindow(application, [&](CMainFrameWnd& frame) {
        frame.setGeometry(0, 0, size.value(0).toInt(), size.value(1).toInt());
        auto* script = new tour::Script(frame, out);
        addMaking(*script);
        addRecolouring(*script);
        addScreens(*script, "en");
        addChanging(*script, out);
        addMending(*script, out);
        addExport(*script, out);
        addChinese(*script);
        script->start([&](bool done) {
            succeeded = done;
            QApplication::exit(0);
        });
    });
    QFile::remove(out + "/icon.png");
    return code == 0 && succeeded ? 0 : 1;
}
