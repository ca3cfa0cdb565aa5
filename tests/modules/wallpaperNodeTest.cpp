#include "modules/wallpaperNode.h"

#include "common/fixtures.h"
#include "common/nodeNames.h"
#include "modules/previewNode.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

using namespace std::string_literals;
using test::jpegHeader;
using test::TemporaryFolder;

/// A theme directory of some generation with pictures to offer.
class ThemePicturesTest : public testing::Test {
protected:
    ThemePicturesTest() { root.setPath(folder.path("res/a/")); }

    std::string picture(std::uint16_t width, std::uint16_t height, std::size_t padding = 0) const {
        return folder.write("offered.jpg", jpegHeader(width, height) + std::string(padding, '\0'));
    }

    TemporaryFolder folder;
    ResNode root;
};

TEST_F(ThemePicturesTest, ScreenOfTheGenerationDecidesTheSize) {
    const struct {
        TypeMask mask;
        const char* key;
        std::uint16_t width;
        std::uint16_t height;
        int code;
    } cases[] = {
        {0x50000004, "wallpaper/image/home_wallpaper_0.jpg", 2160, 2160, 0},
        {0x50000004, "wallpaper/image/home_wallpaper_0.jpg", 2160, 1920, -22},
        {0x50000004, "wallpaper/image/unlock_wallpaper_1.jpg", 1080, 2160, 0},
        {0x50000002, "wallpaper/image/home_wallpaper_0.jpg", 2160, 1920, 0},
        {0x50000001, "wallpaper/image/home_wallpaper_0.jpg", 1080, 1920, -22},
        {0x50000001, "wallpaper/image/unlock_wallpaper_1.jpg", 1080, 1920, 0},
        {0x50000001, "wallpaper/image/unlock_wallpaper_1.jpg", 1080, 2160, -22},
        {0x50000004, "preview/cover.jpg", 1080, 1920, 0},
        {0x50000004, "preview/cover.jpg", 1080, 2160, -22},
        {0x50000004, "preview/preview_unlock_0.jpg", 1080, 2160, 0},
        {0x50000002, "preview/preview_unlock_0.jpg", 1080, 2160, -22},
        {0x50000002, "preview/preview_unlock_0.jpg", 1080, 1920, 0},
        {0x50000002, "preview/icon_small.jpg", 510, 345, 0},
        {0x50000004, "preview/icon_small_1.jpg", 640, 640, 0},
    };
    for (const auto& [mask, key, width, height, code] : cases) {
        SCOPED_TRACE(key);
        root.setTypeMask(mask);
        root.deleteChildren();
        root.emplaceChild<WallpaperNode>();
        root.emplaceChild<PreviewNode>();
        ResNode* node = root.findByPath(splitKeyPath(key));
        node->clearValue();
        EXPECT_EQ(node->setValue(picture(width, height)), code);
        EXPECT_EQ(node->value(), code == 0 ? folder.path("res/a/"s + node->path() + node->name()) : "");
    }
}

TEST_F(ThemePicturesTest, PreviewHasItsOwnLimitOfBytes) {
    auto& preview = root.emplaceChild<PreviewNode>();
    ResNode* cover = preview.findChild("cover.jpg");
    const std::size_t header = jpegHeader(1080, 1920).size();
    EXPECT_EQ(cover->validate(picture(1080, 1920, 307200 - header)), 0);
    EXPECT_EQ(cover->validate(picture(1080, 1920, 307201 - header)), -20);
}

TEST_F(ThemePicturesTest, FurtherPreviewsOfTheModulesBecomeNodes) {
    for (const char* name : {"preview_unlock_1.jpg", "preview_mms_12.jpg", "preview_widget_00.jpg",
                             "preview_other_1.jpg", "preview_unlock_x.jpg", "preview_unlock_1.png",
                             "preview_phone_1.jpg", "xpreview_unlock_1.jpg", "preview_unlock_0.jpg"})
        folder.write("res/a/preview/"s + name, jpegHeader(1080, 1920));
    auto& preview = root.emplaceChild<PreviewNode>();
    EXPECT_EQ(test::childNames(preview),
              (std::vector<std::string>{"cover.jpg", "icon_small.jpg", "icon_small_1.jpg", "preview_contacts_0.jpg",
                                        "preview_icons_0.jpg", "preview_mms_0.jpg", "preview_systemui_0.jpg",
                                        "preview_unlock_0.jpg", "preview_widget_0.jpg", "preview_mms_12.jpg",
                                        "preview_unlock_1.jpg", "preview_widget_00.jpg"}));
    EXPECT_EQ(preview.lastChild()->path(), "preview/");
}

TEST_F(ThemePicturesTest, WallpaperVideoIsNamedByItsProperties) {
    const std::string file = folder.write("res/a/wallpaper/my.mp4", "video");
    folder.write("res/a/wallpaper/ext.properties", "wallpaper_video=my.mp4\r\nother=1\n");
    auto& wallpaper = root.emplaceChild<WallpaperNode>();
    EXPECT_EQ(wallpaper.findByPath(KeyPath{"image_set", "my.mp4"})->value(), file);
    EXPECT_EQ(wallpaper.findByPath(KeyPath{"ext.properties", "wallpaper_video"})->value(), "my.mp4");
    EXPECT_EQ(wallpaper.findByPath(KeyPath{"ext.properties", "video_mode"})->value(), "1");
    EXPECT_EQ(wallpaper.findByPath(KeyPath{"ext.properties", "other"})->value(), "1");
}

} // namespace
} // namespace zdt
