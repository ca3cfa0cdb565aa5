#include "support/xmlFile.h"

#include "common/fixtures.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

namespace zdt {
namespace {

using test::namesIn;
using test::readFile;
using test::TemporaryFolder;

std::string nested(int levels) {
    std::string text;
    for (int level = 0; level < levels; ++level)
        text += "<a>";
    for (int level = 0; level < levels; ++level)
        text += "</a>";
    return text;
}

TEST(XmlFile, WhatIsNoDocumentIsRefusedAndLeavesAnEmptyOne) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    folder.write("folder/inside", "<a/>");
    folder.write("empty", "");
    folder.write("text", "no element");
    folder.write("comment", "<?xml version=\"1.0\"?><!-- only -->");
    folder.write("cut", "<resources><color name=\"a\">#ffffff</colo");
    folder.write("crossed", "<a><b></a></b>");
    folder.write("bomb", nested(100'000));
    folder.write("huge", "<a/>");
    std::filesystem::resize_file(folder.path("huge"), 16 * 1024 * 1024 + 1);
    for (const char* name :
         {"missing", "pipe", "folder", "empty", "text", "comment", "cut", "crossed", "bomb", "huge"}) {
        SCOPED_TRACE(name);
        tinyxml2::XMLDocument document;
        startXml(document, "before");
        EXPECT_FALSE(loadXml(document, folder.path(name)));
        EXPECT_TRUE(document.NoChildren());
    }
    tinyxml2::XMLDocument document;
    ASSERT_TRUE(loadXml(document, folder.write("deep", nested(90))));
    EXPECT_STREQ(document.RootElement()->Name(), "a");
}

TEST(XmlFile, ControlCharacterIsRefusedHoweverItIsWritten) {
    const TemporaryFolder folder;
    tinyxml2::XMLDocument document;
    for (const char* text :
         {"\x01", "&#27;", "&#x1b;", "&#0;", "&#311#3;", "&#;", "&#x;", "&#1", "&#", "&#99999999999;"})
        EXPECT_FALSE(loadXml(document, folder.write("a.xml", "<a>" + std::string(text) + "</a>"))) << text;
    for (const char* text : {"&#9;&#10;&#13;", "&#x20;&#20013;", "&amp;#27;", "\t\r\n", "&#38;#27;"})
        EXPECT_TRUE(loadXml(document, folder.write("a.xml", "<a>" + std::string(text) + "</a>"))) << text;
}

TEST(XmlFile, CarriageReturnIsWrittenSoThatItIsReadBack) {
    const TemporaryFolder folder;
    const std::string path = folder.write("a.xml", "<a b='1&#13;2&#13;&#10;3'>4&#xd;&amp;5\r\n6</a>");
    for (int time = 0; time < 2; ++time) {
        tinyxml2::XMLDocument document;
        ASSERT_TRUE(loadXml(document, path));
        EXPECT_TRUE(std::string(document.RootElement()->Attribute("b")) == "1\r2\r\n3");
        EXPECT_TRUE(std::string(document.RootElement()->GetText()) == "4\r&5\n6");
        EXPECT_TRUE(saveXml(document, path));
    }
}

TEST(XmlFile, DocumentIsWrittenWithDeclarationAndReadBack) {
    const TemporaryFolder folder;
    const std::string path = folder.path("theme.xml");
    tinyxml2::XMLDocument written;
    tinyxml2::XMLElement& root = startXml(written, "resources");
    addXmlElement(root, "color", "<主题 & \"x\">").SetAttribute("name", "key");
    addXmlElement(root, "empty");
    EXPECT_TRUE(saveXml(written, path));
    EXPECT_TRUE(readFile(path).starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
    EXPECT_EQ(namesIn(folder.path()).size(), 1U);

    tinyxml2::XMLDocument document;
    ASSERT_TRUE(loadXml(document, path));
    const tinyxml2::XMLElement* colour = document.RootElement()->FirstChildElement();
    EXPECT_STREQ(colour->GetText(), "<主题 & \"x\">");
    EXPECT_STREQ(colour->Attribute("name"), "key");
    EXPECT_EQ(colour->NextSiblingElement()->GetText(), nullptr);
    EXPECT_FALSE(saveXml(written, folder.path("missing/theme.xml")));
}

TEST(XmlFile, ElementOfMoreAttributesThanAnyThemeHasIsRefusedAtOnce) {
    const TemporaryFolder folder;
    for (const char* value : {"''", "'>'", "\"<'\"", "'-->'", "'\"'"}) {
        for (const int count : {1000, 1001, 300000}) {
            std::string text = "<?x '?><a><!-- <b c=' --><![CDATA[<b ']]><b";
            for (int index = 0; index < count; ++index)
                text += " a" + std::to_string(index) + "=" + value;
            tinyxml2::XMLDocument document;
            EXPECT_EQ(loadXml(document, folder.write("a.xml", text + "/></a>")), count <= 1000) << value << count;
        }
    }
}

TEST(XmlFile, WhatIsWrittenCanBeRead) {
    const TemporaryFolder folder;
    const std::string path = folder.path("a.xml");
    const std::string text = std::string(5000, '=') + "='>' a=\"<\"";
    tinyxml2::XMLDocument document;
    tinyxml2::XMLElement& root = startXml(document, "a");
    addXmlElement(root, "b", text).SetAttribute("c", text.c_str());
    ASSERT_TRUE(saveXml(document, path));
    tinyxml2::XMLDocument again;
    ASSERT_TRUE(loadXml(again, path));
    EXPECT_TRUE(again.RootElement()->FirstChildElement()->GetText() == text);
    EXPECT_TRUE(again.RootElement()->FirstChildElement()->Attribute("c") == text);

    for (int index = 0; index <= 1000; ++index)
        root.SetAttribute(("a" + std::to_string(index)).c_str(), "");
    EXPECT_FALSE(saveXml(document, path));
    EXPECT_TRUE(loadXml(again, path)) << "the file stays";
}

} // namespace
} // namespace zdt
