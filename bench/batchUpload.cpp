#include "editor/batchCompile.h"
#include "editor/pictureTable.h"
#include "editor/pictureUpload.h"
#include "store/themeResource.h"
#include "support/files.h"

#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// A batch of 200 pictures, 50 of them nine-patches to be compiled, from the list of files to the theme's folder,
/// beside the compiling of the 50 alone by two processes at once.
namespace zdt {
namespace {

constexpr int pictureCount = 200;
constexpr int patchCount = 50;
constexpr int side = 240;
constexpr int rounds = 9;

void writePicture(const std::string& path, bool isPatch, int seed) {
    QImage image(side, side, QImage::Format_ARGB32);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            image.setPixel(x, y, qRgba(x ^ seed, y, (x * y) >> 8, 255));
    }
    for (int at = 0; isPatch && at < side; ++at) {
        const QRgb mark = at > side / 3 && at < side / 2 ? qRgba(0, 0, 0, 255) : 0;
        for (const QPoint& edge : {QPoint(at, 0), QPoint(at, side - 1), QPoint(0, at), QPoint(side - 1, at)})
            image.setPixel(edge, mark);
    }
    if (!image.save(QString::fromStdString(path), "PNG"))
        std::exit(1);
}

/// No page has so many rows: each stands for one of the places of a real page that takes any size.
std::vector<PictureGroup> makeRows(const ThemeResource& theme) {
    std::vector<PictureEntry> real;
    for (const PictureGroup& group : pictureGroupsOf(theme, "contacts")) {
        for (const PictureEntry& entry : group.entries) {
            if (!entry.sizeHint.contains('*'))
                real.push_back(entry);
        }
    }
    PictureGroup rows;
    for (int number = 0; number < pictureCount; ++number) {
        PictureEntry entry = real[static_cast<std::size_t>(number) % real.size()];
        const bool isPatch = number < patchCount;
        entry.format = isPatch ? ".9.png" : ".png";
        entry.name = "picture" + std::to_string(number) + entry.format;
        entry.sizeHint.clear();
        rows.entries.push_back(entry);
    }
    return {rows};
}

double milliseconds(const std::function<bool()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    if (!work())
        std::exit(1);
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

int run() {
    const QTemporaryDir folder("/var/tmp/zdt-bench-XXXXXX");
    const std::string root = folder.path().toStdString() + "/";
    std::filesystem::create_directory_symlink(ZDT_TEMPLATES_DIR "default9.1", root + "default9.1");
    const auto theme = ThemeResource::createTheme("T", 2, 0, false, true, root);
    if (!theme || !makePath(root + "in/"))
        return 1;
    std::vector<PictureGroup> rows = makeRows(*theme);
    std::vector<std::string> files;
    for (const PictureEntry& entry : rows.front().entries) {
        files.push_back(root + "in/" + entry.name);
        writePicture(files.back(), entry.isNinePatch(), static_cast<int>(files.size()));
    }
    const std::string tool = ZDT_TEMPLATES_DIR "tools/aapt";
    const NinePatchCompiler compiler(tool);
    const auto batch = [&] {
        std::vector<BatchFile> plan = planBatch(files, "contacts", rows);
        const BatchCompiling with{compiler, root + "ours/", nullptr, {}};
        bool isStored = compileBatch(plan, ninePatchesOf(plan), with);
        for (const BatchFile& file : plan) {
            PictureEntry* entry = findEntry(rows, file.key);
            isStored = isStored && file.isFit() && entry && storePicture(*theme, *entry, file.file, {}).code() == 0;
        }
        return isStored;
    };
    const std::string command = "mkdir -p " + root + "peer && cd " + root + "in && ls *.9.png | xargs -P 2 -I{} " +
                                tool + " s -i {} -o ../peer/{} > /dev/null";
    std::vector<double> ours;
    std::vector<double> peer;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(milliseconds(batch));
        peer.push_back(milliseconds([&] { return std::system(command.c_str()) == 0; }));
    }
    std::printf("batch %.1f peer %.1f\n", median(ours), median(peer));
    return 0;
}

} // namespace
} // namespace zdt

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return zdt::run();
}
