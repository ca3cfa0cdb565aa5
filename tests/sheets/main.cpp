#include "assets/screenArt.h"
#include "canvas/screens/screenTable.h"
#include "common/storeFixture.h"
#include "sheets/composedScreen.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cstdio>

namespace zdt::test {

namespace {

constexpr int gap = 24;

/// English and Chinese in the theme's colours, and both in dark ones.
QImage makeSheet(const Screen& screen, const ThemeResource& theme, int width) {
    constexpr std::array<SheetStyle, 4> styles{{{false, false}, {true, false}, {false, true}, {true, true}}};
    const int height = width * phoneHeight / phoneWidth;
    QImage sheet(gap + static_cast<int>(styles.size()) * (width + gap), height + 2 * gap, QImage::Format_RGB32);
    sheet.fill(QColor(0x88, 0x8c, 0x92));
    QPainter painter(&sheet);
    int left = gap;
    for (const SheetStyle& style : styles) {
        const QImage phone = composeScreen(screen, theme, style);
        painter.drawImage(left, gap, phone.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        left += width + gap;
    }
    return sheet;
}

bool saveSheets(const QDir& folder, const QString& module, unsigned generation, int width) {
    const TemporaryStore store;
    const auto theme = store.create("sheet", {generation});
    bool saved = true;
    for (const Screen& screen : allScreens()) {
        const QString name = QString::fromUtf8(screen.name.data(), static_cast<qsizetype>(screen.name.size()));
        if ((screen.absentFrom & generationBit(generation)) ||
            (!module.isEmpty() && module.toStdString() != screen.module))
            continue;
        const QString file = folder.filePath(QString("%1-%2-%3.png")
                                                 .arg(QString::fromStdString(std::string(screen.module)), name)
                                                 .arg(generation)
                                                 .replace(' ', '_'));
        saved = makeSheet(screen, *theme, width).save(file) && saved;
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
    if (words.size() < 2 || !QDir().mkpath(words[1]) || !zdt::assets::missingFonts().isEmpty()) {
        std::fputs("usage: zdt_screen_sheets FOLDER [MODULE [GENERATION [WIDTH]]]\n", stderr);
        return 2;
    }
    const unsigned generation = std::min(words.value(3, "2").toUInt(), 2U);
    const int width = std::clamp(words.value(4, "360").toInt(), 90, 1080);
    return zdt::test::saveSheets(QDir(words[1]), words.value(2), generation, width) ? 0 : 1;
}
