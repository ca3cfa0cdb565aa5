#include "assets/art/faces.h"
#include "assets/lock/lockPainter.h"
#include "model/template.h"

#include <QGuiApplication>
#include <QPainter>

#include <cstdio>

namespace {

using namespace zdt::assets;

struct Shot {
    LockScene scene;
    LockForm form = LockForm::designed;
};

std::vector<Shot> shots() {
    LockScene charging;
    charging.isCharging = true;
    charging.messages = 2;
    charging.calls = 1;
    LockScene music;
    music.showsMusic = true;
    music.amPm = "AM";
    music.hour = 11;
    music.minute = 47;
    music.calls = 3;
    LockScene slide = music;
    slide.ownerInfo = "Slide to unlock";
    slide.messages = 1;
    return {{LockScene()}, {charging}, {music}, {slide, LockForm::slide}};
}

/// The lock screens of a generation side by side.
QImage sheetOf(const Generation& generation, const std::string& directory, int width) {
    const QSize cell(width, generation.screenHeight * width / 1080);
    const std::vector<Shot> all = shots();
    const int step = width + width / 20;
    QImage sheet(step * static_cast<int>(all.size()) - width / 20, cell.height(), QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);
    for (std::size_t index = 0; index < all.size(); ++index)
        painter.drawImage(step * static_cast<int>(index), 0,
                          paintLockScreen(directory, cell, generation, all[index].scene, all[index].form));
    return sheet;
}

} // namespace

/// Writes a PNG per generation with the lock screens of a few scenes, to be looked at.
int main(int count, char** arguments) {
    if (count != 4) {
        std::fputs("usage: zdt_lock_sheet TEMPLATES OUTDIR WIDTH\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    const std::string out = std::string(arguments[2]) + "/lock";
    for (const Generation& generation : generations) {
        const std::string directory = std::string(arguments[1]) + "/" + zdt::templateDirectory(generation.index);
        const QImage sheet = sheetOf(generation, directory, std::atoi(arguments[3]));
        if (!sheet.save(QString::fromStdString(out + std::to_string(generation.index) + ".png")))
            return 1;
    }
    return 0;
}
