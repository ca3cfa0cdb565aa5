#include "common/storeFixture.h"
#include "modules/themeNode.h"
#include "support/files.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

using test::TemporaryStore;

const KeyPath images{"icons", "thirdparty", "image"};
const KeyPath rules{"icons", "thirdparty", "mode"};

/// The names of a node's children.
std::vector<std::string> childrenOf(const ThemeResource& theme, const KeyPath& keyPath) {
    std::vector<std::string> names;
    for (const auto& [name, value] : theme.childPairs(keyPath))
        names.push_back(name);
    return names;
}

TEST(Previews, AddedOneIsNumberedBehindTheHighest) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const std::string file = store.write("screen.jpg", test::jpegHeader(1080, 2160));
    std::string path;
    for (const char* number : {"1", "2", "3", "4"}) {
        ASSERT_EQ(theme->addPreview(file, "preview_unlock_", path), 0);
        EXPECT_EQ(path, store.path(std::string("res/T/preview/preview_unlock_") + number + ".jpg"));
    }
    ASSERT_EQ(theme->addPreview(file, "preview_other_", path), 0);
    EXPECT_EQ(fileName(path), "preview_other_0.jpg");
    EXPECT_EQ(theme->deletePreview(store.path("res/T/preview/preview_unlock_2.jpg")), 0);
    EXPECT_FALSE(pathExists(store.path("res/T/preview/preview_unlock_2.jpg")));
    ASSERT_EQ(theme->addPreview(file, "preview_unlock_", path), 0);
    EXPECT_EQ(fileName(path), "preview_unlock_5.jpg");
    theme->removeNumberedPreviews();
    EXPECT_EQ(childrenOf(*theme, {"preview"}).size(), 10U) << "the fixed nine and preview_other_0.jpg";
    EXPECT_TRUE(pathExists(path)) << "the files stay";
    EXPECT_NE(store.open("T")->getValue({"preview"}, "preview_unlock_5.jpg"), "") << "and come back as nodes";
}

TEST(Previews, RefusedOnesChangeNothing) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const std::string tall = store.write("tall.jpg", test::jpegHeader(1080, 2160));
    const std::string wrong = store.write("wrong.jpg", test::jpegHeader(1080, 1920));
    const std::string cover = store.path("res/T/preview/cover.jpg");
    const std::size_t before = childrenOf(*theme, {"preview"}).size();
    std::string path = "untouched";
    EXPECT_EQ(theme->addPreview(tall, "cover", path), -9);
    EXPECT_EQ(theme->addPreview(tall, "preview__", path), -9);
    EXPECT_EQ(theme->addPreview(tall, "preview_../../x_", path), -9);
    EXPECT_EQ(theme->addPreview(store.path("none.jpg"), "preview_unlock_", path), -2);
    EXPECT_EQ(theme->addPreview(wrong, "preview_unlock_", path), -22);
    EXPECT_EQ(theme->replacePreview(store.path("none.jpg"), cover), -2);
    EXPECT_EQ(theme->replacePreview(cover, cover), -4);
    EXPECT_EQ(theme->replacePreview(wrong, "preview_none_0.jpg"), -14);
    EXPECT_EQ(theme->replacePreview(tall, cover), -22) << "a cover is 1920 high in every generation";
    EXPECT_EQ(theme->deletePreview(store.path("none.jpg")), -2);
    for (const char* name : {"cover.jpg", "icon_small.jpg", "icon_small_1.jpg"})
        EXPECT_EQ(theme->deletePreview(store.path(std::string("res/T/preview/") + name)), -8) << name;
    EXPECT_EQ(theme->deletePreview(tall), -14);
    EXPECT_EQ(path, "untouched");
    EXPECT_EQ(childrenOf(*theme, {"preview"}).size(), before);
    EXPECT_EQ(test::problemsOf(*theme), std::vector<std::string>());
}

TEST(Previews, SettingANumberReusesItsNodeAndRemovesItOnRefusal) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const std::string tall = store.write("tall.jpg", test::jpegHeader(1080, 2160));
    std::string path;
    ASSERT_EQ(theme->setPreview(tall, "preview_mms_", 7, path), 0);
    EXPECT_EQ(fileName(path), "preview_mms_7.jpg");
    EXPECT_EQ(theme->setPreview(store.write("bad.jpg", "no picture"), "preview_mms_", 7, path), -23);
    EXPECT_EQ(theme->tree().findByPath(KeyPath{"preview", "preview_mms_7.jpg"}), nullptr);
}

TEST(ThirdPartyIcons, TheyComeAndGoWithTheirFiles) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const std::string good = test::pngHeader(192, 192);
    const std::string foo = store.write("com.example.foo.png", good);
    struct Case {
        std::string file;
        int code;
    };
    for (const Case& each :
         {Case{foo, 0}, Case{foo, 0}, Case{store.path("none.png"), -2},
          Case{store.write("com.android.browser.png", good), -9}, Case{store.write("my_icon_background.png", good), -9},
          Case{store.write("icon_mask.png", good), -9}, Case{store.write("图标.png", good), -5},
          Case{store.write("com.example.big.png", test::pngHeader(256, 256)), -22},
          Case{store.write("com.example.foo.PNG", good), -21},
          Case{store.write("com.example.foo.jpg", test::jpegHeader(192, 192)), -21}}) {
        SCOPED_TRACE(each.file);
        EXPECT_EQ(theme->addThirdPartyIcon(each.file), each.code);
    }
    EXPECT_EQ(childrenOf(*theme, images), std::vector<std::string>{"com.example.foo.png"});
    EXPECT_EQ(store.open("T")->getValue(images, "com.example.foo.png"), store.path("res/T/icons/com.example.foo.png"));
    EXPECT_EQ(theme->addThirdPartyIcons({store.write("com.example.bar.png", good), store.path("none.png")}),
              (std::map<std::string, int>{{"com.example.bar.png", 0}, {"none.png", -2}}));
    EXPECT_EQ(theme->removeThirdPartyIcon("com.example.foo.png"), 0);
    EXPECT_FALSE(pathExists(store.path("res/T/icons/com.example.foo.png")));
    EXPECT_EQ(theme->removeThirdPartyIcon("com.example.foo.png"), -14);
    EXPECT_EQ(theme->clearThirdPartyIcons(), 0);
    EXPECT_EQ(childrenOf(*theme, images).size(), 0U);
    EXPECT_FALSE(pathExists(store.path("res/T/icons/com.example.bar.png")));
}

TEST(IconBackgrounds, IndexGivesTheName) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const std::string file = store.write("any name.png", test::pngHeader(192, 192));
    EXPECT_EQ(theme->setIconBackground(100, file), -9);
    EXPECT_EQ(theme->setIconBackground(1, store.path("none.png")), -2);
    EXPECT_EQ(theme->setIconBackground(1, store.write("背景.png", test::pngHeader(192, 192))), -5);
    for (const auto& [index, name] :
         {std::pair{0U, "icon_background.png"}, {7U, "icon_background_07.png"}, {99U, "icon_background_99.png"}}) {
        EXPECT_EQ(theme->setIconBackground(index, file), 0);
        EXPECT_EQ(store.open("T")->getValue(rules, name), store.path("res/T/icons/") + name);
        EXPECT_EQ(theme->removeIconBackground(index), 0);
        EXPECT_FALSE(pathExists(store.path("res/T/icons/") + name));
        EXPECT_EQ(theme->removeIconBackground(index), -14);
    }
    EXPECT_EQ(theme->removeIconBackground(100), -14);
}

TEST(CustomUnlock, PackageIsReplacedAndItsPropertiesStay) {
    const TemporaryStore store;
    const auto theme = store.create("T");
    const KeyPath files{"unlock", "custom", "file"};
    EXPECT_EQ(theme->setCustomUnlockFile(store.path("none.apk")), -2);
    EXPECT_EQ(theme->setCustomUnlockFile(store.path()), -2);
    EXPECT_EQ(theme->tree().findByPath(KeyPath{"unlock"})->value(), "amazing");

    EXPECT_EQ(theme->setCustomUnlockFile(store.write("ext.properties", "a=b\n")), 0);
    EXPECT_EQ(test::problemsOf(*theme), std::vector<std::string>{"unlock/custom/file (-2)"})
        << "the package is missing";
    EXPECT_EQ(theme->setCustomUnlockFile(store.write("first.apk", "1")), 0);
    EXPECT_EQ(theme->setCustomUnlockFile(store.write("second.apk", "2")), 0);
    EXPECT_EQ(theme->setCustomUnlockFile(store.write("empty.apk", "")), -20);
    EXPECT_EQ(childrenOf(*theme, files), (std::vector<std::string>{"ext.properties", "second.apk"}));
    EXPECT_EQ(test::namesIn(store.path("res/T/unlock/custom/")),
              (std::vector<std::string>{"ext.properties", "second.apk"}));
    EXPECT_EQ(test::problemsOf(*theme), std::vector<std::string>());

    const auto reopened = store.open("T");
    EXPECT_EQ(reopened->tree().findByPath(KeyPath{"unlock"})->value(), "custom");
    EXPECT_EQ(childrenOf(*reopened, files), (std::vector<std::string>{"ext.properties", "second.apk"}));
    ASSERT_TRUE(reopened->saveTo(store.path("copy/")));
    EXPECT_EQ(test::namesIn(store.path("copy/unlock/ucdscreenlock/")),
              (std::vector<std::string>{"ext.properties", "second.apk"}));
    EXPECT_FALSE(pathExists(store.path("copy/unlock/custom")));
}

} // namespace
} // namespace zdt
