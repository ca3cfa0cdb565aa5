#include "assets/art/faces.h"
#include "assets/sheets/sheets.h"
#include "model/template.h"

#include <QDir>
#include <QGuiApplication>

#include <array>
#include <cstdio>

namespace {

using namespace zdt::assets;

struct Group {
    const char* name;
    Sheet (*make)(const TemplateFolder&);
};

constexpr std::array<Group, 7> groups{{
    {"icons", iconSheet},
    {"digits", digitSheet},
    {"nine-patches", ninePatchSheet},
    {"symbols", symbolSheet},
    {"lock", lockSheet},
    {"wallpapers", wallpaperSheet},
    {"previews", previewSheet},
}};

/// "9.1" of "default9.1/".
QString versionOf(const std::string& directory) {
    return QString::fromStdString(directory).remove("default").remove('/');
}

bool writeSheets(const QDir& folder, const std::string& templates) {
    bool written = true;
    for (const Generation& generation : generations) {
        const std::string directory = zdt::templateDirectory(generation.index);
        for (const Group& group : groups) {
            const QString file = folder.filePath(versionOf(directory) + "-" + group.name + ".png");
            written = group.make({templates + "/" + directory, generation}).paint().save(file) && written;
            std::puts(qPrintable(file));
        }
    }
    return written;
}

} // namespace

/// Writes a PNG for each generation and group of pictures, to be looked at.
int main(int count, char** arguments) {
    if (count < 2 || count > 3) {
        std::fputs("usage: zdt_theme_sheets OUTDIR [TEMPLATESDIR]\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    if (const QString missing = missingFonts(); !missing.isEmpty()) {
        std::fprintf(stderr, "zdt_theme_sheets: missing fonts:\n%s", qPrintable(missing));
        return 1;
    }
    const QDir folder(arguments[1]);
    return folder.mkpath(".") && writeSheets(folder, count == 3 ? arguments[2] : ZDT_TEMPLATES_DIR) ? 0 : 1;
}
