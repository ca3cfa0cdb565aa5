#include "assets/art/faces.h"
#include "assets/skin/skinWriter.h"

#include <QGuiApplication>

#include <cstdio>
#include <string>

int main(int count, char** arguments) {
    if (count != 2 || !*arguments[1]) {
        std::fputs("usage: zdt_skin_pictures PROGRAMDIR\n", stderr);
        return 2;
    }
    // Fonts take an application; there is no screen while a program is built.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    if (const QString missing = zdt::assets::missingFonts(); !missing.isEmpty()) {
        std::fprintf(stderr, "zdt_skin_pictures: missing fonts:\n%s", qPrintable(missing));
        return 1;
    }
    return zdt::assets::writeSkinPictures(std::string(arguments[1]) + "/") ? 0 : 1;
}
