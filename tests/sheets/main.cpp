#include "canvas/previewComposition.h"
#include "canvas/screens/screenTable.h"
#include "editor/screenParts.h"
#include "sheets/skinnedStore.h"
#include "tour/palette.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

namespace zdt::test {

namespace {

constexpr int gap = 24;

/// Gives a theme the colours of a dark one, as far as its generation has them.
bool darken(ThemeResource& theme) {
    bool done = true;
    for (const tour::Recolour& recolour : tour::recolours) {
        const std::string name(recolour.item);
        std::string screen(recolour.screen);
        std::replace(screen.begin(), screen.end(), '|', '/');
        KeyPath block = splitKeyPath(name.find('/') == std::string::npos ? screen + "/" + name : name);
        const std::string item = block.back();
        block.pop_back();
        if (theme.simpleTakesPart(block, item))
            done = theme.changeSimpleValue(block, item, std::string("#") + recolour.digits) == 0 && done;
    }
    return done;
}

struct Shown {
    const ThemeResource& theme;
    bool chinese;
};

/// English and Chinese in the theme's colours, and both in dark ones.
QImage makeSheet(const Screen& screen, const std::array<Shown, 4>& phones, int width) {
    const int height = width * phoneHeight / phoneWidth;
    QImage sheet(gap + static_cast<int>(phones.size()) * (width + gap), height + 2 * gap, QImage::Format_RGB32);
    sheet.fill(QColor(0x88, 0x8c, 0x92));
    QPainter painter(&sheet);
    int left = gap;
    for (const Shown& shown : phones) {
        PreviewComposition composition;
        composition.setDescription(describeScreen(shown.theme, screen, shown.chinese));
        const QImage phone = composition.frame().scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        painter.drawImage(left, gap, phone);
        left += width + gap;
    }
    return sheet;
}

bool saveSheets(const QDir& folder, const std::string& module, unsigned generation, int width) {
    const SkinnedStore store;
    const auto plain = store.create("plain", {generation});
    const auto dark = store.create("dark", {generation});
    bool saved = darken(*dark);
    for (const Screen& screen : allScreens()) {
        if ((screen.absentFrom & generationBit(generation)) || (!module.empty() && module != screen.module))
            continue;
        const std::string name = std::string(screen.module) + "-" + std::string(screen.name);
        const QString file =
            folder.filePath(QString("%1-%2.png").arg(QString::fromStdString(name)).arg(generation).replace(' ', '_'));
        const QImage sheet =
            makeSheet(screen, {{{*plain, false}, {*plain, true}, {*dark, false}, {*dark, true}}}, width);
        saved = sheet.save(file) && saved;
        std::puts(qPrintable(file));
    }
    return saved;
}

} // namespace

} // namespace zdt::test

/// A folder, then if wanted a module or "", a generation's index and the width of a phone.
int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 2 || !QDir().mkpath(words[1])) {
        std::fputs("usage: zdt_screen_sheets FOLDER [MODULE [GENERATION [WIDTH]]]\n", stderr);
        return 2;
    }
    const QDir folder(QDir(words[1]).absolutePath());
    const unsigned generation = std::min(words.value(3, "2").toUInt(), 2U);
    const int width = std::clamp(words.value(4, "360").toInt(), 90, 1080);
    return zdt::test::saveSheets(folder, words.value(2).toStdString(), generation, width) ? 0 : 1;
}
