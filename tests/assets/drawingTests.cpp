#include "assets/art/outline.h"
#include "assets/templateTheme.h"
#include "assets/templates/templateWriter.h"
#include "model/template.h"

#include <gtest/gtest.h>

namespace zdt::test {

TEST(Outlines, AreReadLetterByLetter) {
    struct Row {
        const char* text;
        QRectF bounds;
    };
    const std::array<Row, 8> rows{{
        {"", {}},
        {"M1 2 L3 5", {1, 2, 2, 3}},
        {"M1 2 H4 V7 Z", {1, 2, 3, 5}},
        {" M 0 0 L -1.5 2 ", {-1.5, 0, 1.5, 2}},
        {"M0 0 Q2 4 4 0", {0, 0, 4, 2}},
        {"O5 5 2", {3, 3, 4, 4}},
        {"R1 2 6 4 1", {1, 2, 6, 4}},
        {"A0 0 2 0 90", {0, -2, 2, 2}},
    }};
    for (const Row& row : rows) {
        const QRectF bounds = assets::readOutline(row.text).boundingRect();
        EXPECT_NEAR(bounds.x(), row.bounds.x(), 1e-3) << row.text;
        EXPECT_NEAR(bounds.y(), row.bounds.y(), 1e-3) << row.text;
        EXPECT_NEAR(bounds.width(), row.bounds.width(), 1e-3) << row.text;
        EXPECT_NEAR(bounds.height(), row.bounds.height(), 1e-3) << row.text;
    }
}

TEST(OutlinesDeathTest, ThatAreNotWellFormedAreProgrammingErrors) {
    for (const char* text : {"X1 2", "M1", "M1 2 L", "M 1,2", "O1 2 x"})
        EXPECT_DEATH(static_cast<void>(assets::readOutline(text)), "outline") << text;
}

TEST(TemplateWriter, GivesTheSameBytesAsTheBuildAndLeavesNothingStale) {
    const TemporaryFolder folder;
    folder.write("default8.0/icons/stale.png", "stale");
    // One tells as much as all three, in less time.
    constexpr unsigned generation = 1;
    ASSERT_TRUE(assets::writeTemplates(folder.path(), std::span(&assets::generations[generation], 1)));
    const std::string again = folder.path(templateDirectory(generation));
    const std::string built = templatePath(generation);
    std::set<std::string> files = filesBelow(built);
    std::erase_if(files, [](const std::string& file) { return file.starts_with("preview/"); });
    EXPECT_EQ(filesBelow(again), files);
    for (const std::string& file : files)
        EXPECT_TRUE(readFile(again + file) == readFile(built + file)) << file;
}

TEST(TemplateWriter, SaysWhatItCannotWrite) {
    const TemporaryFolder folder;
    folder.write("default5.0", "a file in the way");
    testing::internal::CaptureStderr();
    EXPECT_FALSE(assets::writeTemplates(folder.path("default5.0/")));
    EXPECT_NE(testing::internal::GetCapturedStderr().find("default5.0"), std::string::npos);
}

} // namespace zdt::test
