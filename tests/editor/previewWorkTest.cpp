#include "common/fixtures.h"
#include "editor/previewCatalog.h"
#include "editor/previewRender.h"
#include "editor/previewUpload.h"
#include "model/fileResNode.h"
#include "packaging/pictureConversion.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QRandomGenerator>

#include <filesystem>

namespace zdt {
namespace {

QImage plain(const QSize& size, const QColor& colour = Qt::darkCyan) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

/// A picture that no encoder makes small: noise in squares of `grain` pixels.
QImage noise(const QSize& size, int grain) {
    QRandomGenerator random(7);
    QImage image(size / grain, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, random.generate() | 0xFF000000U);
    }
    return image.scaled(size);
}

class PreviewWork : public testing::Test {
protected:
    /// Saves a picture and gives its path.
    [[nodiscard]] std::string save(const QImage& image, const std::string& name, const char* format = nullptr) const {
        std::string path = folder.path(name);
        EXPECT_TRUE(image.save(QString::fromStdString(path), format));
        return path;
    }

    const test::TemporaryFolder folder;
    const std::string out = folder.path("out/");
    const bool hasOut = makePath(out);
};

TEST_F(PreviewWork, CoveringShowsTheTopOfAScreenAndTheMiddleOfItWhereWide) {
    QImage screen = plain({1080, 2160}, Qt::white);
    for (int y = 0; y < 1920; ++y) // What a cover shows of a tall screen.
        screen.setPixel(0, y, qRgb(255, 0, 0));
    const QImage cover = covering(screen, {1080, 1920});
    ASSERT_EQ(cover.size(), QSize(1080, 1920));
    EXPECT_EQ(cover.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(cover.pixel(0, 1919), qRgb(255, 0, 0));
    screen.fill(Qt::white);
    for (int y = 1050; y < 1110; ++y)
        screen.setPixel(540, y, qRgb(255, 0, 0));
    EXPECT_NE(covering(screen, {1080, 60}).pixel(540, 30), qRgb(255, 255, 255));
    for (const QSize& size : {QSize(510, 345), QSize(640, 640), QSize(1, 1)})
        EXPECT_EQ(covering(screen, size).size(), size);
    EXPECT_TRUE(covering({}, {10, 10}).isNull());
}

TEST_F(PreviewWork, QualityFallsUntilThePictureIsSmallEnough) {
    const QImage image = noise({1080, 1920}, 4);
    const std::string best = jpegBytes(image, previewQualities.front());
    const std::string worst = jpegBytes(image, previewQualities.back());
    ASSERT_GT(best.size(), worst.size());
    EXPECT_EQ(encodeWithin(image, best.size()), best);
    EXPECT_EQ(encodeWithin(image, best.size() - 1), jpegBytes(image, previewQualities[1]));
    EXPECT_EQ(encodeWithin(image, worst.size()), worst);
    EXPECT_EQ(encodeWithin(image, worst.size() - 1), "");
}

TEST_F(PreviewWork, DrawingsFitTheirPlacesAndAreMadeOnce) {
    const std::string source = save(plain({1080, 2160}), "source.jpg");
    std::vector<RenderTarget> targets{
        {"cover.jpg", {1080, 1920}, {}}, {"icon_small.jpg", {510, 345}, {}}, {"icon_small_1.jpg", {640, 640}, {}}};
    const std::vector<RenderedPicture> made = renderPreviews(source, targets, out);
    ASSERT_EQ(made.size(), 3U);
    for (std::size_t index = 0; index < made.size(); ++index) {
        EXPECT_TRUE(made[index].isMade);
        EXPECT_EQ(makePreviewNode(targets[index].name, "", true)->validate(made[index].file), 0);
        targets[index].current = made[index].file;
    }
    const std::vector<RenderedPicture> again = renderPreviews(source, targets, out);
    EXPECT_TRUE(again[0].isMade && again[0].file.empty());

    const std::string bytes = test::readFile(source);
    const std::string cut = folder.write("cut.jpg", bytes.substr(0, bytes.size() / 2));
    for (const std::string& bad : {cut, folder.path("none.jpg"), std::string()})
        EXPECT_FALSE(renderPreviews(bad, targets, out)[0].isMade) << bad;
    targets[0].current.clear();
    EXPECT_FALSE(renderPreviews(source, targets, {})[0].isMade) << "no folder to work in";
}

TEST_F(PreviewWork, UploadsAreTakenOrRefusedWithAMessage) {
    const QSize tall(1080, 2160);
    const QSize low(1080, 1920);
    const std::string good = save(plain(tall), "good.jpg");
    const std::string bytes = test::readFile(good);
    const std::string name = "preview_unlock_0.jpg";
    const struct {
        std::string file;
        PreviewTarget target;
        const char* message;
    } cases[]{
        {good, {name, true}, ""},
        {good, {name, false}, "kWarn_upload_correct_unlock_pic"},
        {save(plain(low), "low.jpg"), {name, false}, ""},
        {folder.path("low.jpg"), {name, true}, "kWarn_upload_correct_unlock_pic_nine"},
        {save(plain(tall), "plain.png"), {name, true}, ""},
        {good, {"cover.jpg", true}, ""}, // scaled
        {folder.write("large.jpg", bytes + std::string(301 * 1024, ' ')),
         {name, true},
         "kWarn_upload_lessthenone300_pic"},
        {folder.write("text.jpg", "no picture"), {name, true}, "KWarn_upload_JPGPNG"},
        {folder.write("cut.jpg", bytes.substr(0, bytes.size() / 2)), {name, true}, "KWarn_upload_JPGPNG"},
        {folder.write("a.bmp", bytes), {name, true}, "kWarn_upload_jpgorpng_pic"},
        {folder.write("a.JPG", bytes), {name, true}, "kWarn_upload_pic_lower"},
        {folder.write("锁屏.jpg", bytes), {name, true}, "kWarn_upload_include_ch"},
        {folder.path("gone.jpg"), {name, true}, "KWarn_upload_JPGPNG"},
        {folder.path("out"), {name, true}, "KWarn_upload_JPGPNG"},
    };
    for (const auto& [file, target, message] : cases) {
        const PreparedPreview prepared = preparePreview(file, target, out);
        EXPECT_EQ(prepared.message, message) << file;
        if (prepared.message.empty()) {
            EXPECT_EQ(makePreviewNode(target.name, "", target.tall)->validate(prepared.file), 0) << file;
        }
    }
    EXPECT_EQ(preparePreview(good, {name, true}, out).file, good) << "what fits is taken as it is";
    EXPECT_EQ(preparePreview(folder.path("plain.png"), {name, true}, {}).message, "kProblem_17");
}

TEST_F(PreviewWork, PngThatMakesTooLargeAJpegIsRefused) {
    // Few colours in fine grains: small as a PNG, large as a JPEG of any quality.
    QImage dots(1080, 1920, QImage::Format_Mono);
    QRandomGenerator random(3);
    for (int y = 0; y < dots.height(); ++y) {
        for (int x = 0; x < dots.width(); ++x)
            dots.setPixel(x, y, random.generate() % 2);
    }
    const std::string file = save(dots, "dots.png");
    ASSERT_LT(fileSize(file), previewMaxBytes);
    EXPECT_EQ(preparePreview(file, {"preview_mms_0.jpg", false}, out).message, "kWarn_upload_lessthenone300_pic");
}

TEST(PreviewCatalog, SectionsShowWhatTheGenerationHasInTheOrderOfNumbers) {
    const std::vector<std::pair<std::string, std::string>> pictures{
        {"cover.jpg", "c"},           {"preview_contacts_0.jpg", "0"},  {"preview_contacts_1.jpg", "1"},
        {"preview_mms_0.jpg", ""},    {"preview_unlock_0.jpg", "u"},    {"preview_unlock_12.jpg", "u12"},
        {"preview_unlock_2.jpg", ""}, {"preview_contacts_12.jpg", "12"}};
    const std::vector<PreviewSection> sections = previewSections(pictures, 1, false);
    ASSERT_EQ(sections.size(), 4U);
    EXPECT_EQ(sections[0].name, "preview_unlock");
    ASSERT_EQ(sections[0].pictures.size(), 3U);
    EXPECT_EQ(sections[0].pictures[1].name, "preview_unlock_2.jpg");
    EXPECT_EQ(captionNumber(sections[0], "preview_unlock_12.jpg"), "3");
    EXPECT_EQ(sections[1].pictures.size(), 2U) << "the second of the contacts comes with generation 9";
    EXPECT_EQ(captionNumber(sections[2], "preview_mms_0.jpg"), "");
    EXPECT_TRUE(sections[3].isDrawn);
    const PreviewSection contacts = previewSections(pictures, 2, false)[1];
    ASSERT_EQ(contacts.pictures.size(), 4U);
    EXPECT_FALSE(contacts.pictures[1].isSpare);
    EXPECT_TRUE(contacts.pictures[2].isSpare) << "a place for the third";

    const std::vector<PreviewSection> reduced = previewSections(pictures, 2, true);
    ASSERT_EQ(reduced.size(), 1U);
    EXPECT_EQ(reduced[0].pictures.size(), 1U);
    EXPECT_TRUE(previewSections({}, 2, false).empty());
}

TEST(PreviewCatalog, SectionsShareRowsWhereTheyFit) {
    using Places = std::vector<SectionPlace>;
    EXPECT_EQ(placeSections({1, 2, 1, 1, 3, 2}, 5),
              (Places{{0, 0, 1, 1}, {0, 1, 2, 1}, {0, 3, 1, 1}, {0, 4, 1, 1}, {1, 0, 3, 1}, {1, 3, 2, 1}}));
    EXPECT_EQ(placeSections({1, 4, 1}, 3), (Places{{0, 0, 1, 1}, {1, 0, 3, 2}, {3, 0, 1, 1}}));
    EXPECT_EQ(placeSections({2, 1}, 1), (Places{{0, 0, 1, 2}, {2, 0, 1, 1}}));
    EXPECT_TRUE(placeSections({}, 4).empty());
}

} // namespace
} // namespace zdt
