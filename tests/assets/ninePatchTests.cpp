#include "assets/templateTheme.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QStandardPaths>

#include <functional>
#include <map>

namespace zdt::test {

namespace {

using Line = std::function<QRgb(int)>;

struct Stretch {
    int start;
    int end; ///< Exclusive.
};

/// The runs of black in a line of the border; a pixel that is neither black nor transparent fails the test.
std::vector<Stretch> blackRuns(const Line& line, int length) {
    constexpr QRgb black = 0xff000000;
    std::vector<Stretch> runs;
    for (int index = 0; index < length; ++index) {
        const QRgb pixel = line(index);
        EXPECT_TRUE(pixel == black || qAlpha(pixel) == 0) << "pixel " << index;
        if (pixel != black)
            continue;
        if (runs.empty() || runs.back().end != index)
            runs.push_back({index, index});
        runs.back().end = index + 1;
    }
    return runs;
}

/// Whether all columns of a run are the same, so that stretching it bends no corner.
bool isEven(const QImage& picture, const Stretch& run) {
    for (int x = run.start + 1; x < run.end; ++x) {
        for (int y = 1; y < picture.height() - 1; ++y) {
            if (picture.pixel(x, y) != picture.pixel(run.start, y))
                return false;
        }
    }
    return true;
}

/// The nine-patches of all templates, each drawing once, by its bytes.
std::map<std::string, std::string> ninePatches() {
    std::map<std::string, std::string> pathOf;
    for (unsigned generation = 0; generation < generationCount; ++generation) {
        const std::string directory = templatePath(generation);
        for (const std::string& file : filesBelow(directory)) {
            if (file.ends_with(".9.png"))
                pathOf.emplace(readFile(directory + file), directory + file);
        }
    }
    return pathOf;
}

} // namespace

TEST(NinePatches, HaveGuideLinesWhoseStretchedPartsAreEven) {
    const auto pictures = ninePatches();
    EXPECT_GT(pictures.size(), 40U);
    for (const auto& [bytes, path] : pictures) {
        SCOPED_TRACE(path);
        const QImage picture = QImage(QString::fromStdString(path)).convertToFormat(QImage::Format_ARGB32);
        ASSERT_GT(picture.width(), 3);
        ASSERT_GT(picture.height(), 3);
        const int right = picture.width() - 1;
        const int bottom = picture.height() - 1;
        for (const QPoint corner : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
            EXPECT_EQ(qAlpha(picture.pixel(corner)), 0);

        const auto top = blackRuns([&](int x) { return picture.pixel(x, 0); }, picture.width());
        const auto left = blackRuns([&](int y) { return picture.pixel(0, y); }, picture.height());
        EXPECT_FALSE(top.empty());
        EXPECT_FALSE(left.empty());
        EXPECT_EQ(blackRuns([&](int x) { return picture.pixel(x, bottom); }, picture.width()).size(), 1U);
        EXPECT_EQ(blackRuns([&](int y) { return picture.pixel(right, y); }, picture.height()).size(), 1U);

        const QImage turned = picture.transformed(QTransform(0, 1, 1, 0, 0, 0));
        for (const Stretch& run : top)
            EXPECT_TRUE(isEven(picture, run)) << "across from " << run.start;
        for (const Stretch& run : left)
            EXPECT_TRUE(isEven(turned, run)) << "down from " << run.start;
    }
}

TEST(NinePatches, AreCompiledByThePhonesTool) {
    const QString aapt = QStandardPaths::findExecutable("aapt");
    if (aapt.isEmpty())
        GTEST_SKIP() << "no aapt here";
    const TemporaryFolder folder;
    const QString output = QString::fromStdString(folder.path("out.png"));
    for (const auto& [bytes, path] : ninePatches()) {
        QProcess process;
        process.start(aapt, {"s", "-i", QString::fromStdString(path), "-o", output});
        ASSERT_TRUE(process.waitForFinished()) << path;
        EXPECT_EQ(process.exitCode(), 0) << path << "\n" << process.readAllStandardError().toStdString();
    }
}

} // namespace zdt::test
