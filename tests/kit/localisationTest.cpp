#include "kit/localisation.h"

#include "common/fixtures.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zdt {
namespace {

using test::TemporaryFolder;

TEST(Localisation, LinesOfALanguageFile) {
    const struct {
        std::string text;
        TextTable texts;
    } cases[] = {
        {"", {}},
        {"a=1", {{"a", "1"}}},
        {"a=1#2\n", {{"a", "1#2"}}},
        {"a=1\na=2\n", {{"a", "1"}}},
        {"a=\na=2\n", {{"a", ""}}},
        {"none\n\n \n=\n", {{"", ""}}},
        {"a=b=c\n", {{"a", "b=c"}}},
        {"a=1\r\nb=2\r\n", {{"a", "1"}, {"b", "2"}}},
        {"\xEF\xBB\xBF"
         "a=1\n",
         {{"a", "1"}}},
        {"  # a=1\n\t a=2 \v\f\n", {{"a", "2"}}},
        {"a = 1 2 \n", {{"a ", " 1 2"}}},
        {"[one]\na=1\n[two]\na=2\n", {{"a", "1"}}},
        {"a=[1]\nb=]1[\nc=1]\n", {{"b", "]1["}, {"c", "1]"}}},
        {"k=\xE4\xB8\xAD\xE6\x96\x87\n", {{"k", QStringLiteral("中文")}}},
        {"k=a\xFFz\nl=\xE4\xB8", {{"k", QStringLiteral("a\uFFFDz")}, {"l", QStringLiteral("\uFFFD\uFFFD")}}},
        {std::string("a=\0b\n", 5), {{"a", QString::fromUtf8("\0b", 2)}}},
    };
    for (const auto& [text, texts] : cases)
        EXPECT_TRUE(parseTexts(text) == texts) << text;
}

TEST(Localisation, LinesOfTheKeyFile) {
    const struct {
        std::string text;
        KeyTable keys;
    } cases[] = {
        {"", {}},
        {"n=a\n", {{"n", {"a"}}}},
        {"n=1#2\n#n=a\nm=a # b\n", {}},
        {"n=a\nm=c\nn=b\nn=a\n", {{"n", {"a", "b", "a"}}, {"m", {"c"}}}},
        {"\xEF\xBB\xBF[s]\r\n  n=a  \r\nnone\r\nn=[x]\r\nn=\r\n", {{"n", {"a", ""}}}},
    };
    for (const auto& [text, keys] : cases)
        EXPECT_TRUE(parseKeys(text) == keys) << text;
}

TEST(Localisation, HugeFilesAreReadInOneGo) {
    std::string text(900'000, '[');
    text += "\na=1\n";
    for (int i = 0; i < 100'000; ++i)
        text += "k" + std::to_string(i) + "=x\n";
    EXPECT_EQ(parseTexts(text).size(), 100'001);
    EXPECT_EQ(parseKeys("n=" + std::string(5'000'000, 'x')).value("n").value(0).size(), 5'000'000);
}

/// A workspace of its own for texts, as the working directory.
class LocalisationTables : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(::chdir(_folder.path().c_str()), 0); }
    void TearDown() override { ASSERT_EQ(::chdir("/"), 0); }

    void write(const std::string& name, const std::string& text) {
        (void)_folder.write("skin/ZDThemeDesign/" + name, text);
    }
    void remove(const std::string& name) { ::unlink(_folder.path("skin/ZDThemeDesign/" + name).c_str()); }
    std::string pathOf(const std::string& name) { return _folder.path("skin/ZDThemeDesign/" + name); }

private:
    TemporaryFolder _folder;
};

TEST_F(LocalisationTables, LanguageChoosesTheFileAndKeysStay) {
    write("Chinese.ini", "a=甲\nonly=乙\n");
    write("English.ini", "a=A\nempty=\n");
    write("Key.ini", "n=only\nn=a\nm=missing\ne=empty\ne=a\n");
    LoadKeys();
    SetLanguage(chineseLanguage);
    EXPECT_EQ(Text("a"), "甲");
    EXPECT_EQ(KeyedText("n"), "乙");
    remove("Key.ini");
    SetLanguage(englishLanguage);
    EXPECT_EQ(GetLanguage(), englishLanguage);
    EXPECT_EQ(Text("a"), "A");
    EXPECT_EQ(KeyedText("n"), "A");
    EXPECT_EQ(FirstKey("n"), "only");
    EXPECT_EQ(KeyedText("e"), "") << "an empty text is a text";
    for (const char* unknown : {"only", "A", "", "m"})
        EXPECT_EQ(Text(unknown), "");
    EXPECT_EQ(KeyedText("m"), "");
    EXPECT_EQ(KeyedText("a"), "");
    EXPECT_EQ(FirstKey("a"), "");
    SetLanguage(7);
    EXPECT_EQ(GetLanguage(), englishLanguage);
}

TEST_F(LocalisationTables, FileThatCannotBeReadEmptiesTheTable) {
    write("Key.ini", "n=a\n");
    const auto spoil = [this](int how) {
        remove("Chinese.ini");
        if (how == 1)
            (void)::mkfifo(pathOf("Chinese.ini").c_str(), 0600);
        if (how == 2)
            write("Chinese.ini", "a=1\n" + std::string(1024 * 1024, '#'));
    };
    for (int how = 0; how < 3; ++how) {
        write("Chinese.ini", "a=1\n");
        SetLanguage(chineseLanguage);
        ASSERT_EQ(Text("a"), "1");
        spoil(how);
        LoadLanguage();
        EXPECT_EQ(Text("a"), "") << how;
        remove("Chinese.ini");
    }
    LoadKeys();
    ASSERT_EQ(FirstKey("n"), "a");
    remove("Key.ini");
    LoadKeys();
    EXPECT_EQ(FirstKey("n"), "");
}

TEST_F(LocalisationTables, NumberStandsWhereTheTextSaysOrBehindIt) {
    write("Chinese.ini", "count=%d of %d%s%n\nplain=Size: \nword=<%s>\n");
    SetLanguage(chineseLanguage);
    EXPECT_EQ(TextWith("count", 5), "5 of %d%s%n");
    EXPECT_EQ(TextWith("plain", -3), "Size:-3");
    EXPECT_EQ(TextWith("word", QString("%s")), "<%s>");
    EXPECT_EQ(TextWith("missing", 1), "1");
}

} // namespace
} // namespace zdt
