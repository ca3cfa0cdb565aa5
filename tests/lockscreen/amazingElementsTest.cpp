#include "lockscreen/amazingElements.h"

#include "common/fixtures.h"

#include <gtest/gtest.h>
#include <tinyxml2.h>

namespace zdt {
namespace {

using test::namesIn;
using test::readFile;
using test::TemporaryFolder;
using Names = std::vector<std::string>;

/// The root element of a text of XML.
class Xml {
public:
    explicit Xml(const char* text) { EXPECT_EQ(_document.Parse(text), tinyxml2::XML_SUCCESS) << text; }
    [[nodiscard]] const tinyxml2::XMLElement* root() const { return _document.RootElement(); }

private:
    tinyxml2::XMLDocument _document;
};

AmazingChild elementOf(const char* text) {
    return AmazingChild(Xml(text).root());
}

std::string written(const AmazingChild& element) {
    tinyxml2::XMLDocument document;
    tinyxml2::XMLElement* root = element.write(&document);
    if (!root)
        return "nothing";
    document.InsertEndChild(root);
    tinyxml2::XMLPrinter printer(nullptr, true);
    document.Print(&printer);
    return printer.CStr();
}

TEST(AmazingChild, ElementSurvivesReadingAndWriting) {
    const struct {
        const char* read;
        const char* written;
    } cases[] = {
        {"<image/>", "<image/>"},
        {"<image y='2' x='1'/>", "<image x=\"1\" y=\"2\"/>"},
        {"<image x='' y='&lt;&amp;&quot;主'/>", "<image y=\"&lt;&amp;&quot;主\"/>"},
        {"<a>text<b z='1'/>more<c><d/></c><b/></a>", "<a><b z=\"1\"/><c><d/></c><b/></a>"},
        {"<unknown-thing newer='yes'/>", "<unknown-thing newer=\"yes\"/>"},
    };
    for (const auto& [read, result] : cases) {
        const AmazingChild element = elementOf(read);
        EXPECT_EQ(written(element), result);
        EXPECT_EQ(written(AmazingChild(element)), result) << "a copy is a whole one";
    }
    const AmazingChild nothing(static_cast<const tinyxml2::XMLElement*>(nullptr));
    EXPECT_EQ(written(nothing), "nothing");
    AmazingChild parent("a");
    parent.addChild(std::make_unique<AmazingChild>(""));
    parent.addChild(std::make_unique<AmazingChild>("b", AmazingChild::Attributes{{"", "x"}, {"y", ""}, {"z", "1"}}));
    EXPECT_EQ(written(parent), "<a><b z=\"1\"/></a>");
    EXPECT_DEATH(parent.write(nullptr), "doc.*amazingChild");
}

TEST(AmazingChild, FileIsSetByItsNameWhereThereIsOne) {
    const struct {
        const char* element;
        const char* path;
        const char* src;
    } cases[] = {{"<image src='a.png'/>", "/x/y/b.png", "b.png"}, {"<image src='a.png'/>", "b.png", "b.png"},
                 {"<image src='a.png'/>", "/x/y/", "a.png"},      {"<image src='a.png'/>", "", "a.png"},
                 {"<image src=''/>", "/x/b.png", "b.png"},        {"<image/>", "/x/b.png", ""}};
    for (const auto& [text, path, src] : cases) {
        AmazingChild element = elementOf(text);
        element.setFile(path);
        EXPECT_EQ(element.src(), src) << text << ' ' << path;
    }
    AmazingChild element("image");
    EXPECT_EQ(element.attribute("x"), "");
    element.setAttribute("x", "1");
    element.setAttributes({{"y", "2"}});
    EXPECT_EQ(element.attributes(), (AmazingChild::Attributes{{"y", "2"}}));
}

TEST(AmazingChild, OnlyPicturesNameFiles) {
    const struct {
        const char* element;
        std::optional<Names> names;
    } cases[] = {
        {"<image src='a.png'/>", Names{"a.png"}},
        {"<frame src=\"'f'+system.time.hour1\"/>", Names{"f0", "f1", "f2"}},
        {"<text src='system.date'/>", Names{}},
        {"<button src='a.png'/>", Names{}},
        {"<Image src='a.png'/>", Names{}},
        {"<image><frame src='a.png'/></image>", Names{}},
        {"<image src=''/>", Names{}},
    };
    for (const auto& [text, names] : cases)
        EXPECT_EQ(elementOf(text).resources(), names) << text;
    AmazingChild endless("image", {{"src", std::string(5000, 'a')}});
    EXPECT_EQ(endless.resources(), std::nullopt);
}

TEST(AmazingChild, PicturesOfTheWholeSubtreeAreCopied) {
    const TemporaryFolder folder;
    for (const char* name : {"a.png", "f1.png", "f2.png", "d0", "d1", "d2", "other.png"})
        folder.write(std::string("from/") + name, name);
    const AmazingChild element =
        elementOf("<group src='other.png'><image src='a.png'><frame src='f1.png'/><frame src='f2.png'/></image>"
                  "<image><frame src='system.time.hour1'/></image><image src=\"'d'+system.time.hour1\"/></group>");
    EXPECT_FALSE(element.copyResources(folder.path("from/"), folder.path("to/"))) << "0, 1 and 2 aren't there";
    EXPECT_EQ(namesIn(folder.path("to")), (Names{"a.png", "f1.png", "f2.png"})) << "what was copied before stays";
    for (const char* name : {"0", "1", "2"})
        folder.write(std::string("from/") + name, name);
    EXPECT_TRUE(element.copyResources(folder.path("from/"), folder.path("to/")));
    EXPECT_EQ(namesIn(folder.path("to")), (Names{"0", "1", "2", "a.png", "d0", "d1", "d2", "f1.png", "f2.png"}));
    EXPECT_EQ(readFile(folder.path("to/d2")), "d2");
    EXPECT_TRUE(element.copyResources(folder.path("to/"), folder.path("to/")));
}

TEST(AmazingChild, NameThatLeadsOutOfTheFolderIsRefused) {
    const TemporaryFolder folder;
    folder.write("secret.png", "x");
    folder.write("from/below/a.png", "x");
    const struct {
        const char* src;
        bool bare;
    } cases[] = {{"../secret.png", false}, {"below/a.png", false},       {"..", false}, {".", false},
                 {"/etc/passwd", false},   {"'..'+'/secret.png'", false}};
    for (const auto& [src, bare] : cases) {
        const AmazingChild element("image", {{"src", src}});
        EXPECT_EQ(element.copyResources(folder.path("from/"), folder.path("to/")), bare) << src;
        EXPECT_EQ(namesIn(folder.path()), (Names{"from", "secret.png"}));
    }
    EXPECT_TRUE(isBareFileName("..a"));
    EXPECT_TRUE(isBareFileName("主题.png"));
    EXPECT_FALSE(isBareFileName(""));
}

TEST(LockWallPaper, BothHeightsHaveTheirFilesAndKeepThemInPairs) {
    const TemporaryFolder folder;
    const Xml xml("<image src=\"'system.screen_height'+'bg_'+system.time.hour2+'.jpg'\"/>");
    LockWallPaper wallpaper(xml.root());
    ASSERT_EQ(wallpaper.files1920().size(), 10U);
    EXPECT_EQ(wallpaper.files1920()[9], "bg_9.jpg");
    EXPECT_EQ(wallpaper.files2160()[9], "2160_bg_9.jpg");
    for (const char* name : {"bg_0.jpg", "bg_1.jpg", "bg_3.jpg", "2160_bg_0.jpg", "2160_bg_2.jpg"})
        folder.write(name, "x");
    for (const std::string& absent : {std::string(), folder.path("missing/"), folder.path("bg_0.jpg")}) {
        wallpaper.lookUpFiles(absent);
        EXPECT_EQ(wallpaper.files1920().size(), 10U) << absent;
    }
    wallpaper.lookUpFiles(folder.path());
    EXPECT_EQ(wallpaper.files1920(), (Names{"bg_0.jpg", "bg_1.jpg", "bg_2.jpg"})) << "only the end is cut";
    EXPECT_EQ(wallpaper.files2160(), (Names{"2160_bg_0.jpg", "2160_bg_1.jpg", "2160_bg_2.jpg"}));
    EXPECT_EQ(wallpaper.resources().value().size(), 6U);
    folder.write("2160_bg_8.jpg", "x");
    LockWallPaper longer(xml.root());
    longer.lookUpFiles(folder.path());
    EXPECT_EQ(longer.files2160().size(), 4U) << "as many as the shorter list has";
}

TEST(LockWallPaper, WithoutTheHeightBothSetsAreTheSameFiles) {
    const LockWallPaper wallpaper(AmazingChild("image", {{"src", "'bg_'+system.time.hour1+'.jpg'"}}));
    EXPECT_EQ(wallpaper.name(), "image");
    EXPECT_EQ(wallpaper.files1920(), wallpaper.files2160());
    EXPECT_EQ(wallpaper.resources(), (Names{"bg_0.jpg", "bg_1.jpg", "bg_2.jpg"}));
    const std::string endless = "system.time.min2+system.time.min2+system.time.min2+system.time.min2+system.time.min2";
    for (const std::string& src : {endless, "'" + std::string(5000, 'a') + "'"})
        EXPECT_EQ(LockWallPaper(AmazingChild("image", {{"src", src}})).resources(), std::nullopt);
}

TEST(UnlockerData, KindTellsWhetherTheEndLiesElsewhere) {
    const struct {
        const char* element;
        int kind;
    } cases[] = {
        {"<unlocker/>", 0},
        {"<unlocker><StartPoint/></unlocker>", 0},
        {"<unlocker><EndPoint/></unlocker>", 0},
        {"<unlocker><StartPoint/><EndPoint/></unlocker>", 1},
        {"<unlocker><StartPoint x='0' y='0' w='0' h='0'/><EndPoint x='0' y='0' w='0' h='0'/></unlocker>", 1},
        {"<unlocker><StartPoint x='0'/><EndPoint x='00'/></unlocker>", 2},
        {"<unlocker><StartPoint h='5'/><EndPoint/></unlocker>", 2},
        {"<unlocker><StartPoint x='1'/><StartPoint x='1'/><EndPoint x='1'/></unlocker>", 0},
        {"<unlocker><EndPoint x='1'/><StartPoint x='1'/><EndPoint x='2'/></unlocker>", 1},
        {"<unlocker><StartPoint state='a'/><EndPoint state='b'/></unlocker>", 1},
        {"<unlocker><g><StartPoint/></g><EndPoint/></unlocker>", 0},
    };
    for (const auto& [text, kind] : cases)
        EXPECT_EQ(UnlockerData(Xml(text).root()).unlockerKind(), kind) << text;
}

TEST(AmazingElements, WallpaperFillsTheScreenAndChangesWithTheTime) {
    const struct {
        const char* element;
        bool isWallpaper;
    } cases[] = {
        {"<image x='0' y='0' w='1080' h='1920' src='system.time.min1'/>", true},
        {"<image x='0' y='0' w='1080' h='2160' src='system.time.min1'/>", true},
        {"<image x='0' y='0' w='1080' h='system.screen_height' src='system.time.min1'/>", true},
        {"<image x='0' y='0' w='1080' h='system.screen_height' src='a.png'/>", false},
        {"<image x='0' y='0' w='1080' h='1921' src='system.time.min1'/>", false},
        {"<image x='0' y='1' w='1080' h='1920' src='system.time.min1'/>", false},
        {"<image y='0' w='1080' h='1920' src='system.time.min1'/>", false},
        {"<image x='00' y='0' w='1080' h='1920' src='system.time.min1'/>", false},
        {"<frame x='0' y='0' w='1080' h='1920' src='system.time.min1'/>", false},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(isWallpaper(elementOf(text)), expected) << text;
}

} // namespace
} // namespace zdt
