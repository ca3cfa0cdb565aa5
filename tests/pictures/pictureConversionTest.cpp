#include "packaging/pictureConversion.h"

#include "common/fixtures.h"
#include "pictures/pngBytes.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QImage>
#include <QImageReader>

#include <filesystem>
#include <functional>

namespace zdt {
namespace {

class PictureConversionTest : public testing::Test {
protected:
    std::string picture(const char* name, int width, int height, const QColor& colour) const {
        QImage image(width, height, QImage::Format_ARGB32);
        image.fill(colour);
        EXPECT_TRUE(image.save(QString::fromStdString(folder.path(name))));
        return folder.path(name);
    }

    static QImage load(const std::string& path) {
        QImageReader reader(QString::fromStdString(path));
        reader.setDecideFormatFromContent(true);
        EXPECT_EQ(reader.format(), "jpeg");
        return reader.read();
    }

    /// Whether a JPEG's pixel is that colour, but for what the encoder loses.
    static bool isNear(const QColor& pixel, const QColor& colour) {
        constexpr int loss = 6;
        return std::abs(pixel.red() - colour.red()) < loss && std::abs(pixel.green() - colour.green()) < loss &&
               std::abs(pixel.blue() - colour.blue()) < loss;
    }

    test::TemporaryFolder folder;
};

TEST_F(PictureConversionTest, PictureBecomesAJpegUnderItsName) {
    const std::string path = picture("a.png", 64, 48, QColor(10, 200, 90));
    ASSERT_TRUE(EncodeJpegInPlace(path, 95));
    const QImage image = load(path);
    EXPECT_EQ(image.size(), QSize(64, 48));
    EXPECT_TRUE(isNear(image.pixelColor(30, 20), QColor(10, 200, 90)));
    EXPECT_EQ(test::namesIn(folder.path()), std::vector<std::string>{"a.png"}) << "nothing stays beside it";
}

TEST_F(PictureConversionTest, LowerQualityTakesLess) {
    QImage noise(200, 200, QImage::Format_RGB32);
    for (int pixel = 0; pixel < 40000; ++pixel)
        noise.setPixel(pixel % 200, pixel / 200, static_cast<unsigned>(pixel) * 2654435761U);
    std::uintmax_t last = 0;
    for (const int quality : {-5, 20, 60, 100}) {
        ASSERT_TRUE(noise.save(QString::fromStdString(folder.path("a.png"))));
        ASSERT_TRUE(EncodeJpegInPlace(folder.path("a.png"), quality));
        const std::uintmax_t size = std::filesystem::file_size(folder.path("a.png"));
        EXPECT_GT(size, last) << quality;
        last = size;
    }
}

TEST_F(PictureConversionTest, TransparencyBecomesWhite) {
    const QColor halfBlack(0, 0, 0, 128);
    const std::string encoded = picture("a.png", 20, 20, QColor(255, 0, 0, 0));
    ASSERT_TRUE(EncodeJpegInPlace(encoded, 90));
    EXPECT_TRUE(isNear(load(encoded).pixelColor(5, 5), Qt::white));
    const std::string scaled = picture("b.png", 20, 20, halfBlack);
    ASSERT_TRUE(ScaleJpegInPlace(scaled, 1080, 1920));
    EXPECT_TRUE(isNear(load(scaled).pixelColor(500, 500), QColor(127, 127, 127)));
}

TEST_F(PictureConversionTest, OnlySizesOfAScreenAndMoreAreScaledTo) {
    const struct {
        int width;
        int height;
        bool scales;
    } cases[] = {{1080, 1920, true},  {2160, 1920, true},    {720, 1280, false},   {1079, 1920, false},
                 {1080, 1919, false}, {-1080, -1920, false}, {60000, 60000, false}};
    for (const auto& [width, height, scales] : cases) {
        const std::string path = picture("a.jpg", 720, 1280, Qt::blue);
        const std::string before = test::readFile(path);
        EXPECT_EQ(ScaleJpegInPlace(path, width, height), scales) << width << " x " << height;
        EXPECT_EQ(load(path).size(), scales ? QSize(width, height) : QSize(720, 1280));
        EXPECT_EQ(test::readFile(path) == before, !scales);
    }
}

TEST_F(PictureConversionTest, FailureLeavesTheSourceAsItWas) {
    const std::string good = test::readFile(picture("good.png", 50, 50, Qt::red));
    QImageReader::setAllocationLimit(0); // Our own bound alone is left to refuse what is too large.
    QImage tooLarge(8192, 8193, QImage::Format_Mono);
    tooLarge.fill(0);
    ASSERT_TRUE(tooLarge.save(QString::fromStdString(folder.path("large.png"))));
    const std::pair<const char*, std::string> cases[] = {
        {"empty", ""},
        {"text", "no picture"},
        {"cut", good.substr(0, good.size() / 2)},
        {"header alone", test::jpegHeader(1080, 1920)},
        {"a row more than the most pixels", test::readFile(folder.path("large.png"))},
        {"60,000 x 60,000", test::pngStart(60000, 60000)},
        {"larger than the memory of a computer", test::pngStart(0x7fffffff, 0x7fffffff)},
    };
    const std::function<bool(const std::string&)> conversions[] = {
        [](const std::string& path) { return EncodeJpegInPlace(path, 80); },
        [](const std::string& path) { return ScaleJpegInPlace(path, 1080, 2340); },
    };
    for (const auto& [what, bytes] : cases) {
        for (const auto& convert : conversions) {
            const std::string path = folder.write("in/a.jpg", bytes);
            EXPECT_FALSE(convert(path)) << what;
            EXPECT_TRUE(test::readFile(path) == bytes) << what;
            EXPECT_EQ(test::namesIn(folder.path("in")).size(), 1U) << what;
        }
    }
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(EncodeJpegInPlace(folder.path("pipe"), 80));
    EXPECT_FALSE(EncodeJpegInPlace(folder.path(), 80));
}

} // namespace
} // namespace zdt
