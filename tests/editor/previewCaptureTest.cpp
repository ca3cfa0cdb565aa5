#include "editor/previewCapture.h"

#include "common/pageFixture.h"
#include "model/pictureSize.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

namespace zdt::test {
namespace {

class PreviewCaptureTest : public PageTest {
protected:
    [[nodiscard]] static QImage composed(QRgb colour = 0xff204060) {
        QImage image(1080, 2160, QImage::Format_RGB32);
        image.fill(colour);
        return image;
    }

    /// A picture that no quality makes small.
    [[nodiscard]] static QImage noise() {
        QImage image(1080, 2160, QImage::Format_RGB32);
        QRandomGenerator random(1);
        random.fillRange(reinterpret_cast<quint32*>(image.bits()), 1080 * 2160);
        return image;
    }
};

TEST_F(PreviewCaptureTest, NamesAreOfTheModuleAndScreen) {
    EXPECT_EQ(captureName("contacts", 2), "preview_contacts_2.jpg");
    EXPECT_EQ(captureName("mms", 3), "preview_mms_0.jpg");
}

TEST_F(PreviewCaptureTest, CaptureBecomesThePreview) {
    for (const unsigned generation : {0U, 2U}) {
        ThemeResource& theme = openNew("G" + std::to_string(generation), {generation});
        for (const int index : {0, 3}) {
            const PreviewCapture capture = capturePreview(theme, store.root(), "systemui", index, composed());
            EXPECT_TRUE(capture.stored) << index;
            EXPECT_EQ(capture.message, "kScreen_Capture_remind");
            EXPECT_EQ(fileName(capture.file), captureName("systemui", index));
            const std::uint32_t height = generation == 2 ? 2160 : 1920;
            EXPECT_EQ(jpegSize(capture.file), (PictureSize{1080, height}));
            EXPECT_TRUE(isPlainFile(store.root() + "screencapture/" + captureName("systemui", index)));
        }
        EXPECT_TRUE(capturePreview(theme, store.root(), "mms", 2, composed()).stored);
    }
}

TEST_F(PreviewCaptureTest, PictureThatStaysTooLargeChangesNothing) {
    ThemeResource& theme = openNew();
    const std::string standing = theme.getValue({"preview"}, "preview_contacts_0.jpg");
    const std::string before = test::readFile(standing);
    for (const int index : {0, 4}) {
        const PreviewCapture capture = capturePreview(theme, store.root(), "contacts", index, noise());
        EXPECT_FALSE(capture.stored);
        EXPECT_EQ(capture.message, "kScreen_Capture_remind");
    }
    EXPECT_EQ(test::readFile(standing), before);
    EXPECT_EQ(theme.getValue({"preview"}, "preview_contacts_0.jpg"), standing);
    EXPECT_FALSE(theme.findLeaf({"preview"}, "preview_contacts_4.jpg"));
}

TEST_F(PreviewCaptureTest, NothingIsCapturedOfNothing) {
    ThemeResource& theme = openNew();
    EXPECT_TRUE(capturePreview(theme, store.root(), "contacts", -1, composed()).message.isEmpty());
    EXPECT_TRUE(capturePreview(theme, store.root(), "contacts", 0, {}).message.isEmpty());
    EXPECT_FALSE(capturePreview(theme, "/proc/none/", "contacts", 0, composed()).stored);
}

} // namespace
} // namespace zdt::test
