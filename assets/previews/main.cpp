#include "assets/art/faces.h"
#include "assets/previews/previewWriter.h"

#include <QGuiApplication>

#include <cstdio>

int main(int count, char** arguments) {
    if (count != 3 || !*arguments[1] || !*arguments[2]) {
        std::fputs("usage: zdt_previews TEMPLATESDIR SKINDIR\n", stderr);
        return 2;
    }
    // Fonts take an application; there is no screen while a program is built.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    if (const QString missing = zdt::assets::missingFonts(); !missing.isEmpty()) {
        std::fprintf(stderr, "zdt_previews: missing fonts:\n%s", qPrintable(missing));
        return 1;
    }
    return zdt::assets::writePreviews(arguments[1], arguments[2]) ? 0 : 1;
}
