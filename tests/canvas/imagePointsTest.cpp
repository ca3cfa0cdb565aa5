#include "canvas/imagePoints.h"

#include "canvas/layerPainting.h"
#include "canvas/shapes.h"
#include "canvas/tint.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstring>

namespace zdt::test {
namespace {

constexpr std::size_t headSize = 264;
constexpr std::size_t pointSize = 12;

class ImagePointsTest : public testing::Test {
protected:
    [[nodiscard]] ImagePoints points() const { return ImagePoints({folder.path(), folder.path("program/")}); }
    [[nodiscard]] std::string add(const std::string& name, const QSize& size, long seconds = 1000) const {
        std::string path = saved(folder, "skin/ZDThemeDesign/simplepic/" + name, disc(size));
        setTime(path, seconds);
        return path;
    }
    static void setTime(const std::string& path, long seconds) {
        const std::array<std::timespec, 2> times{{{seconds, 0}, {seconds, 0}}};
        ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times.data(), 0), 0);
    }
    [[nodiscard]] std::string bytes() const { return readFile(desc); }
    /// Writes the file, as old as now.
    void put(const std::string& content) const {
        static_cast<void>(folder.write("skin/ZDThemeDesign/ImageInfo.desc", content));
    }
    /// A picture of another shape, its time as before: what is recorded of the first is what is given.
    void swap(const std::string& path, long seconds = 1000) const {
        ASSERT_TRUE(disc({30, 30}).scaled(20, 20).save(QString::fromStdString(path)));
        setTime(path, seconds);
    }

    TemporaryFolder folder;
    std::string desc = folder.path("skin/ZDThemeDesign/ImageInfo.desc");
};

PixelList listed(const QImage& picture) {
    PixelList list;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (const int alpha = qAlpha(picture.pixel(x, y)); alpha > 0)
                list.push_back({x, y, alpha});
        }
    }
    return list;
}

TEST_F(ImagePointsTest, RecordIsWrittenAsStatedAndReadAgain) {
    const std::string path = add("a.png", {20, 20});
    const PixelList wanted = listed(disc({20, 20}));
    EXPECT_EQ(points().of(path)->points(), wanted);

    const std::string written = bytes();
    ASSERT_EQ(written.size(), headSize + pointSize * wanted.size());
    EXPECT_EQ(static_cast<unsigned char>(written[0]), wanted.size() & 0xff);
    EXPECT_STREQ(written.c_str() + 4, "skin/ZDThemeDesign/simplepic/a.png");
    EXPECT_EQ(written[headSize], static_cast<char>(wanted[0].x));
    EXPECT_EQ(written[headSize + 4], static_cast<char>(wanted[0].y));
    EXPECT_EQ(written[headSize + 8], static_cast<char>(wanted[0].alpha));

    swap(path);
    EXPECT_EQ(points().of("./skin/ZDThemeDesign/simplepic/a.png")->points(), wanted);
    EXPECT_EQ(bytes(), written);
}

TEST_F(ImagePointsTest, CutFileKeepsWhatIsWholeAndTakesMore) {
    const std::string first = add("a.png", {20, 20});
    const std::string second = add("b.png", {12, 12});
    std::size_t firstEnd = 0;
    {
        ImagePoints both = points();
        ASSERT_TRUE(both.of(first));
        firstEnd = bytes().size();
        ASSERT_TRUE(both.of(second));
    }
    const std::string whole = bytes();
    const PixelList ofSecond = listed(disc({12, 12}));
    for (const std::size_t size : {std::size_t{0}, std::size_t{3}, headSize - 1, headSize, firstEnd - 1, firstEnd,
                                   firstEnd + 3, firstEnd + headSize, whole.size() - 1}) {
        put(whole.substr(0, size));
        EXPECT_EQ(points().of(second)->points(), ofSecond) << size;
        EXPECT_EQ(points().of(first)->points(), listed(disc({20, 20}))) << size;
        EXPECT_EQ(bytes().size(), whole.size()) << size;
    }
}

TEST_F(ImagePointsTest, DamagedRecordsAreNotBelieved) {
    const std::string path = add("a.png", {20, 20});
    ASSERT_TRUE(points().of(path));
    const std::string whole = bytes();
    const auto with = [&whole](std::size_t at, const std::string& patch) {
        std::string damaged = whole;
        return damaged.replace(at, patch.size(), patch);
    };
    const std::vector<std::pair<const char*, std::string>> cases{
        {"count beyond the file", with(0, "\xff\xff\xff\x7f")},
        {"largest count", with(0, "\xff\xff\xff\xff")},
        {"path that nothing ends", with(4, std::string(260, 'p'))},
        {"path that leads outside", with(4, std::string("skin/../a.png\0", 14))},
        {"point right of the picture", with(headSize, std::string("\x14\0\0\0", 4))},
        {"point above the picture", with(headSize + 4, "\xff\xff\xff\xff")},
        {"alpha of nothing", with(headSize + 8, std::string(4, '\0'))},
        {"alpha beyond a byte", with(headSize + 9, "\1")},
        {"no file at all", "damaged"},
    };
    for (const auto& [name, content] : cases) {
        put(content);
        EXPECT_EQ(points().of(path)->points(), listed(disc({20, 20}))) << name;
        EXPECT_EQ(points().of(path)->points(), listed(disc({20, 20}))) << name;
    }
}

TEST_F(ImagePointsTest, RecordOlderThanItsPictureIsNeverUsedAgain) {
    const std::string path = add("a.png", {20, 20});
    const std::string other = add("b.png", {12, 12}, 900);
    ASSERT_TRUE(points().of(path));
    swap(path, 2000);
    const PixelList fresh = listed(QImage(QString::fromStdString(path)));
    // What is recorded next makes the file newer, but not the old record true.
    setTime(other, 3000);
    ASSERT_TRUE(points().of(other));
    EXPECT_EQ(points().of(path)->points(), fresh);

    ImagePoints running = points();
    ASSERT_TRUE(running.of(path));
    ASSERT_TRUE(QImage(disc({20, 20})).save(QString::fromStdString(path)));
    setTime(path, 4000);
    ASSERT_TRUE(running.of(add("c.png", {9, 9}, 5000)));
    EXPECT_EQ(points().of(path)->points(), listed(disc({20, 20})));
}

TEST_F(ImagePointsTest, OnlyPicturesOfTheSkinAreRecorded) {
    const std::string deep = "skin/ZDThemeDesign/" + std::string(120, 'd') + "/";
    const std::size_t left = 259 - deep.size() - 4;
    const std::string longest = saved(folder, deep + std::string(left, 'n') + ".png", disc({8, 8}));
    const std::string tooLong = saved(folder, deep + std::string(left + 1, 'n') + ".png", disc({8, 8}));
    const std::string elsewhere = saved(folder, "theme/a.png", disc({8, 8}));
    const std::string otherSkin = saved(folder, "theme/skin/a.png", disc({8, 8}));
    // Its head, from which its size is learnt, isn't that of the kind that the points are of.
    const std::string photo = saved(folder, "skin/ZDThemeDesign/a.jpg", disc({8, 8}));
    ImagePoints all = points();
    for (const std::string& path : {elsewhere, otherSkin, tooLong, photo}) {
        EXPECT_TRUE(all.of(path)) << path;
        EXPECT_EQ(bytes(), "") << path;
    }
    EXPECT_TRUE(all.of(longest));
    EXPECT_EQ(bytes().size(), headSize + pointSize * listed(disc({8, 8})).size());
    EXPECT_FALSE(all.of(folder.path("skin/ZDThemeDesign/none.png")));
    EXPECT_FALSE(all.of(folder.write("skin/ZDThemeDesign/text.png", "text")));
}

TEST_F(ImagePointsTest, ShippedRecordsAreReadForShippedPicturesAlone) {
    const std::string name = "skin/ZDThemeDesign/simplepic/a.png";
    ASSERT_TRUE(points().of(add("a.png", {20, 20})));
    static_cast<void>(folder.write("program/skin/ZDThemeDesign/ImageInfo.desc", bytes()));
    ASSERT_EQ(::unlink(desc.c_str()), 0);
    ASSERT_EQ(::unlink(folder.path(name).c_str()), 0);
    const std::string shipped = folder.write("program/" + name, "");
    swap(shipped);
    EXPECT_EQ(points().of("./" + name)->points(), listed(disc({20, 20})));
    EXPECT_EQ(bytes(), "");
    // The author's own picture is older than what was shipped.
    const std::string own = add("a.png", {12, 12}, 500);
    EXPECT_EQ(points().of("./" + name)->points(), listed(disc({12, 12})));
}

TEST_F(ImagePointsTest, TwoProcessesKeepTheFileWhole) {
    const std::string first = add("a.png", {20, 20});
    const std::string second = add("b.png", {12, 12});
    const std::string third = add("c.png", {9, 9});
    {
        ImagePoints one = points();
        ImagePoints other = points();
        ASSERT_TRUE(one.of(first));
        ASSERT_TRUE(other.of(second));
        ASSERT_TRUE(one.of(third));
    }
    const std::size_t each = headSize * 3 + pointSize * (listed(disc({20, 20})).size() + listed(disc({12, 12})).size() +
                                                         listed(disc({9, 9})).size());
    EXPECT_LE(bytes().size(), each);
    for (const std::string& path : {first, second, third})
        EXPECT_EQ(points().of(path)->points(), listed(QImage(QString::fromStdString(path))));

    // Where a record was known, another picture's of as many points stands now.
    ImagePoints known = points();
    std::string other = bytes();
    const std::size_t name = other.find("a.png");
    ASSERT_NE(name, std::string::npos);
    other[name] = 'd';
    other[name - std::strlen("skin/ZDThemeDesign/simplepic/") - 4 + headSize + 8] = 77;
    put(other);
    EXPECT_EQ(known.of(first)->points(), listed(disc({20, 20})));
    EXPECT_EQ(known.of(third)->points(), listed(disc({9, 9})));
}

TEST_F(ImagePointsTest, FileInUseOrOfAnotherKindIsLeftAlone) {
    const std::string path = add("a.png", {20, 20});
    put("");
    const int held = ::open(desc.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    EXPECT_EQ(points().of(path)->points(), listed(disc({20, 20})));
    EXPECT_EQ(bytes(), "");
    ::close(held);
    ASSERT_EQ(::unlink(desc.c_str()), 0);
    ASSERT_EQ(::mkfifo(desc.c_str(), 0600), 0);
    EXPECT_EQ(points().of(path)->points(), listed(disc({20, 20})));
}

TEST_F(ImagePointsTest, FullDiskLeavesWhatWasWhole) {
    ASSERT_TRUE(points().of(add("a.png", {20, 20})));
    const std::string whole = bytes();
    struct rlimit before {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto signalled = std::signal(SIGXFSZ, SIG_IGN);
    const std::string next = add("b.png", {40, 40});
    const rlimit tight{whole.size() + headSize + 100, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &tight), 0);
    {
        ImagePoints running = points();
        EXPECT_EQ(running.of(next)->points(), listed(disc({40, 40})));
    }
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, signalled);
    EXPECT_EQ(bytes(), whole);
}

TEST_F(ImagePointsTest, FolderThatCannotBeWrittenOnlyKeepsNothing) {
    const std::string shipped = saved(folder, "program/skin/ZDThemeDesign/a.png", disc({20, 20}));
    // Where the folder belongs stands a file: that stops even a user whom no permission stops.
    const std::string blocked = folder.write("blocked", "");
    ImagePoints running({blocked + "/", folder.path("program/")});
    EXPECT_EQ(running.of(shipped)->points(), listed(disc({20, 20})));
    EXPECT_EQ(running.of(shipped)->points(), listed(disc({20, 20})));
}

TEST(Tint, EqualsAWalkOverThePixels) {
    const QImage picture = disc({41, 33}, QColor(10, 20, 30, 200));
    const InkMask mask = InkMask::ofImage(picture);
    EXPECT_EQ(mask.pointCount(), mask.points().size());
    for (const QRgb colour : {0xffffffffU, 0xff102030U, 0x80ff8000U, 0x01ffffffU, 0x00ffffffU}) {
        QImage image(picture.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(0);
        paintShape(FrameLines(image), image.rect(), mask, tintTable(colour), QPoint());
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const int alpha = qAlpha(picture.pixel(x, y)) * qAlpha(colour) / 255;
                const QRgb wanted = qPremultiply((colour & 0xffffff) | static_cast<QRgb>(alpha) << 24);
                ASSERT_EQ(reinterpret_cast<const QRgb*>(image.constScanLine(y))[x], wanted) << x << ' ' << y;
            }
        }
    }
}

} // namespace
} // namespace zdt::test
