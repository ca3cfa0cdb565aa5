#include "model/fileResNode.h"

#include "common/fixtures.h"
#include "model/returnCode.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

namespace zdt {
namespace {

using namespace std::string_literals;
using test::jpegHeader;
using test::namesIn;
using test::pngHeader;
using test::readFile;
using test::TemporaryFolder;
using Codes = std::vector<int>;

/// A theme directory with one picture node of 192 x 192 in icons/.
class FileResNodeTest : public testing::Test {
protected:
    FileResNodeTest() {
        root.setPath(folder.path("res/a/"));
        root.setTypeMask(0x50000001);
    }

    TemporaryFolder folder;
    ResNode root;
    FileResNode& node = root.adopt(makeIconNode("icon.png", "icons/", true));
    std::string target = folder.path("res/a/icons/icon.png");
};

TEST_F(FileResNodeTest, FirstFailingCheckTellsTheCode) {
    ASSERT_EQ(::mkfifo(folder.path("pipe.png").c_str(), 0600), 0);
    folder.write("folder.png/inside", "x");
    std::filesystem::create_symlink("nowhere", folder.path("dangling.png"));
    const std::string good = pngHeader(192, 192);
    const auto padded = [&](std::size_t size) { return good + std::string(size - good.size(), '\0'); };
    std::filesystem::create_symlink(folder.write("good.png", good), folder.path("link.png"));
    const struct {
        const char* name;
        std::string content;
        int code;
    } cases[] = {
        {"a.png", good, 0},
        {"A.PNG", good, 0},
        {"largest.png", padded(1048576), 0},
        {"larger.png", padded(1048577), -20},
        {"larger.jpg", padded(1048577), -20},
        {"empty.png", "", -20},
        {"empty.txt", "", -20},
        {"a.jpg", jpegHeader(192, 192), -21},
        {"a.jpeg", jpegHeader(192, 192), -21},
        {"a", good, -21},
        {"a.png.txt", good, -21},
        {"text.png", "text", -23},
        {"jpegInside.png", jpegHeader(192, 192), -23},
        {"flat.png", pngHeader(0, 0), -23},
        {"low.png", pngHeader(192, 0), -22},
        {"narrow.png", pngHeader(0, 5), -22},
        {"191.png", pngHeader(191, 192), -22},
        {"193.png", pngHeader(192, 193), -22},
        {"256.png", pngHeader(256, 256), -22},
    };
    for (const auto& [name, content, code] : cases)
        EXPECT_EQ(node.validate(folder.write(std::string("in/") + name, content)), code) << name;
    for (const char* name : {"missing.png", "pipe.png", "folder.png", "dangling.png", "good.png/x"})
        EXPECT_EQ(node.validate(folder.path(name)), -2) << name;
    EXPECT_EQ(node.validate(""), -2);
    EXPECT_EQ(node.validate(folder.path("link.png")), 0) << "a link to a plain file is one";
}

TEST_F(FileResNodeTest, LastFailureStaysInTheErrors) {
    EXPECT_TRUE(node.errors().empty());
    EXPECT_EQ(node.validate(folder.write("a.txt", "x")), -21);
    EXPECT_EQ(node.validate(""), -2);
    EXPECT_EQ(node.errors(), Codes{-2});
    EXPECT_EQ(node.validate(folder.write("a.png", pngHeader(192, 192))), 0);
    EXPECT_EQ(node.errors(), Codes{-2});
}

TEST_F(FileResNodeTest, RulesOfANodeDecide) {
    FileResNode plain("package");
    EXPECT_EQ(plain.validate(folder.write("a.apk", "x")), 0);
    EXPECT_EQ(plain.validate(folder.write("a.png", pngHeader(1, 1))), -21) << "a node without kinds takes no picture";
    plain.setMaxBytes(0);
    EXPECT_EQ(plain.validate(folder.write("big.apk", std::string(1048577, 'x'))), 0);
    plain.setAllowedKinds(fileKind::png | fileKind::jpeg);
    EXPECT_EQ(plain.validate(folder.path("a.apk")), -21);
    EXPECT_EQ(plain.validate(folder.path("a.png")), 0) << "any size without ranges";
    EXPECT_EQ(plain.validate(folder.write("zero.png", pngHeader(0, 5))), -22);
    EXPECT_EQ(plain.validate(folder.write("a.JPG", jpegHeader(5, 7))), 0);
    plain.setSizeRanges({SizeRange(10, 20, 30, 40), SizeRange(5, 7)});
    const struct {
        std::uint32_t width;
        std::uint32_t height;
        int code;
    } cases[] = {{10, 30, 0}, {19, 39, 0}, {20, 30, -22}, {10, 40, -22}, {9, 30, -22}, {10, 29, -22}, {5, 7, 0}};
    for (const auto& [width, height, code] : cases)
        EXPECT_EQ(plain.validate(folder.write("sized.png", pngHeader(width, height))), code) << width << 'x' << height;
}

TEST_F(FileResNodeTest, ValueIsCopiedIntoTheThemeAtOnceUnderTheNodesName) {
    const std::string source = folder.write("in/图 1.PNG", pngHeader(192, 192) + "first");
    EXPECT_EQ(node.setValue(source), 0);
    EXPECT_EQ(node.value(), target);
    EXPECT_EQ(readFile(target), readFile(source));
    EXPECT_EQ(node.setValue(target), 0) << "a file over itself stays";
    EXPECT_EQ(readFile(target), readFile(source));

    EXPECT_EQ(node.setValue(folder.write("in/b.png", pngHeader(10, 10))), -22);
    EXPECT_EQ(node.value(), target);
    EXPECT_EQ(readFile(target), readFile(source));
    EXPECT_EQ(namesIn(folder.path("res/a/icons")), std::vector<std::string>{"icon.png"});
}

TEST_F(FileResNodeTest, ThemeThatCannotBeWrittenKeepsTheOldValue) {
    node.setRawValue("before");
    const std::string source = folder.write("a.png", pngHeader(192, 192));
    folder.write("res/a/icons/icon.png/in the way", "x");
    EXPECT_EQ(node.setValue(source), returnCode::copyFailed);
    EXPECT_EQ(node.value(), "before");
    node.setPath("plain/");
    folder.write("res/a/plain", "a file where a folder should be");
    EXPECT_EQ(node.setValue(source), returnCode::cannotMakeFolder);
    EXPECT_EQ(node.value(), "before");
}

TEST_F(FileResNodeTest, NodeOutsideAThemeKeepsTheSourcePath) {
    const std::string source = folder.write("a.png", pngHeader(192, 192));
    root.setPath("");
    EXPECT_EQ(node.setValue(source), 0);
    EXPECT_EQ(node.value(), source);
    EXPECT_FALSE(node.save(true));
}

TEST_F(FileResNodeTest, SavingFollowsARootThatMoved) {
    ASSERT_EQ(node.setValue(folder.write("a.png", pngHeader(192, 192))), 0);
    EXPECT_TRUE(node.save(false));
    root.setPath(folder.path("tmp/a/"));
    EXPECT_TRUE(node.save(false));
    EXPECT_EQ(readFile(folder.path("tmp/a/icons/icon.png")), readFile(target));
    EXPECT_EQ(node.value(), target);
    ASSERT_TRUE(removeFile(target));
    EXPECT_FALSE(node.save(false));
    node.clearValue();
    EXPECT_FALSE(node.save(false));
}

TEST_F(FileResNodeTest, FileOfTheThemeIsTakenOverIfItIsAllowed) {
    node.setRawValue("before");
    node.loadFromTheme();
    EXPECT_EQ(node.value(), "before") << "no file, no change";
    folder.write("res/a/icons/icon.png", pngHeader(192, 192));
    node.loadFromTheme();
    EXPECT_EQ(node.value(), target);
    folder.write("res/a/icons/icon.png", pngHeader(10, 10));
    node.loadFromTheme();
    EXPECT_EQ(node.value(), "");
    EXPECT_EQ(node.errors(), Codes{-22});
}

TEST_F(FileResNodeTest, DefaultComesFromTheTemplateOfTheHighestGeneration) {
    const struct {
        TypeMask mask;
        const char* directory;
    } cases[] = {{0x50000001, "default5.0/"}, {0xa0000002, "default8.0/"}, {0x4, "default9.1/"}, {0x7, "default9.1/"}};
    for (const auto& [mask, directory] : cases) {
        std::filesystem::create_directories(folder.path(directory));
        root.setTypeMask(mask);
        EXPECT_EQ(node.defaultValue(), folder.path(directory) + "icons/icon.png");
    }
    node.setPath("");
    EXPECT_EQ(node.defaultValue(), "");
}

TEST_F(FileResNodeTest, DefaultWithoutAGenerationIsAProgrammingError) {
    root.setTypeMask(0x50000000);
    EXPECT_DEATH(static_cast<void>(node.defaultValue()), "version != OVUI_UNKOWN.*fileResNode");
}

TEST(FileKind, ExtensionAloneDecides) {
    const struct {
        const char* path;
        std::uint32_t kind;
    } cases[] = {{"a.png", 1},    {"a.PnG", 1},    {"a.9.png", 1}, {"a.jpg", 2},     {"a.JPG", 2},
                 {"a.jpeg", 128}, {"a.png ", 128}, {"png", 128},   {"d.png/a", 128}, {"", 128}};
    for (const auto& [path, kind] : cases)
        EXPECT_EQ(fileKindOf(path), kind) << path;
}

TEST(PictureNodes, BuildersSetTheRules) {
    const auto loose = makeIconNode("a.png", "icons/", false);
    EXPECT_EQ(loose->path(), "icons/");
    EXPECT_EQ(loose->allowedKinds(), fileKind::png);
    EXPECT_EQ(loose->sizeRanges(), (std::vector<SizeRange>{{192, 192}, {256, 256}}));
    EXPECT_EQ(makeIconNodes({"a", "b"}, "icons/", true)[1]->sizeRanges(),
              (std::vector<SizeRange>{{192, 193, 192, 193}}));
    EXPECT_EQ(makeIconNodes({1, 2}, {"a", "b"}, "icons/", true)[1]->typeMask(), 2U);
    EXPECT_TRUE(makeIconNodes({1}, {"a", "b"}, "icons/", true).empty());
}

} // namespace
} // namespace zdt
