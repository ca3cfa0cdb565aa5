#include "assets/art/faces.h"
#include "assets/templates/templateWriter.h"

#include <QGuiApplication>

#include <cstdio>
#include <string>

int main(int count, char** arguments) {
    if (count < 2 || count > 3 || !*arguments[1]) {
        std::fputs("usage: zdt_assets OUTDIR [PART]\n", stderr);
        return 2;
    }
    // Fonts take an application; there is no screen while a program is built.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    if (const QString missing = zdt::assets::missingFonts(); !missing.isEmpty()) {
        std::fprintf(stderr, "zdt_assets: missing fonts:\n%s", qPrintable(missing));
        return 1;
    }
    const std::string directory = std::string(arguments[1]) + "/";
    const bool written =
        count == 3 ? zdt::assets::redrawPart(directory, arguments[2]) : zdt::assets::writeTemplates(directory);
    return written ? 0 : 1;
}
