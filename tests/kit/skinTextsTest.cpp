#include "common/fixtures.h"
#include "kit/localisation.h"
#include "modules/tables/pictures.h"
#include "modules/tables/simpleMode.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QRegularExpression>
#include <QSet>

#include <filesystem>

/// The three files of words that are shipped.
namespace zdt {
namespace {

const std::string skin = ZDT_SOURCE_DIR "/skin/ZDThemeDesign/";

QString fileText(const std::string& name) {
    return QString::fromStdString(test::readFile(skin + name));
}

TextTable texts(const std::string& name) {
    return parseTexts(test::readFile(skin + name));
}

/// The lines that aren't empty, a comment or a section.
qsizetype dataLines(const std::string& name) {
    qsizetype count = 0;
    for (const QString& line : fileText(name).split('\n'))
        count += !line.isEmpty() && !line.startsWith('#') && !(line.startsWith('[') && line.endsWith(']'));
    return count;
}

std::string sorted(const QSet<QString>& keys) {
    QStringList list = keys.values();
    list.sort();
    return list.join('\n').toStdString();
}

QSet<QString> keysOf(const TextTable& table) {
    return {table.keyBegin(), table.keyEnd()};
}

TEST(SkinTexts, BothLanguagesHaveTheSameKeysAndEachOnce) {
    const TextTable chinese = texts("Chinese.ini");
    const TextTable english = texts("English.ini");
    EXPECT_GT(chinese.size(), 400);
    EXPECT_EQ(sorted(keysOf(chinese) - keysOf(english)), "");
    EXPECT_EQ(sorted(keysOf(english) - keysOf(chinese)), "");
    // A line that is doubled, lacks "=" or holds both brackets is no pair.
    EXPECT_EQ(dataLines("Chinese.ini"), chinese.size());
    EXPECT_EQ(dataLines("English.ini"), english.size());
    qsizetype pairs = 0;
    for (const QStringList& keys : parseKeys(test::readFile(skin + "Key.ini")))
        pairs += keys.size() - QStringList(keys).removeDuplicates();
    EXPECT_EQ(dataLines("Key.ini"), pairs);
}

TEST(SkinTexts, OnlyTextsThatMeanItAreEmpty) {
    const QSet<QString> chineseEmpty{"kZDTheme_edit_tool_url"};
    const QSet<QString> englishEmpty{"kZDTheme_edit_tool_url", "datename"};
    for (const auto& [name, meant] : {std::pair{"Chinese.ini", chineseEmpty}, {"English.ini", englishEmpty}}) {
        const TextTable table = texts(name);
        QSet<QString> empty;
        for (auto text = table.begin(); text != table.end(); ++text) {
            if (text->trimmed().isEmpty())
                empty.insert(text.key());
        }
        EXPECT_EQ(sorted(empty), sorted(meant)) << name;
    }
}

TEST(SkinTexts, TextsAreInTheirLanguageAndTakeTheSameValues) {
    const TextTable chinese = texts("Chinese.ini");
    const TextTable english = texts("English.ini");
    const QRegularExpression han(R"(\p{Han})");
    const QRegularExpression otherFormat("%(?![ds12])[A-Za-z0-9]");
    for (auto text = chinese.begin(); text != chinese.end(); ++text) {
        const QString other = english.value(text.key());
        const std::string key = text.key().toStdString();
        for (const char* mark : {"%d", "%s"}) {
            EXPECT_EQ(text->count(mark), other.count(mark)) << key;
            EXPECT_LE(text->count(mark), 1) << key;
        }
        for (const char* mark : {"%1", "%2"})
            EXPECT_EQ(text->contains(mark), other.contains(mark)) << key;
        EXPECT_FALSE((*text + "\n" + other).contains(otherFormat)) << key;
        EXPECT_FALSE(other.contains(han)) << key;
        EXPECT_TRUE(text->isEmpty() || text->contains(han)) << key;
        EXPECT_FALSE(other.contains(QChar::ReplacementCharacter) || text->contains(QChar::ReplacementCharacter)) << key;
    }
}

TEST(SkinTexts, VersionOfTheProgramStandsBehindTheOnlyV) {
    for (const char* name : {"Chinese.ini", "English.ini"}) {
        const QStringList parts = texts(name).value("kZDTheme_edit_tool").split('V');
        ASSERT_EQ(parts.size(), 2) << name;
        EXPECT_EQ(parts[1], ZDT_VERSION) << name;
    }
}

/// Runs a check in both languages, with the tables loaded from the sources' own skin.
template <typename Check>
void inBothLanguages(Check check) {
    ASSERT_EQ(::chdir(ZDT_SOURCE_DIR), 0);
    LoadKeys();
    for (const int language : {englishLanguage, chineseLanguage}) {
        SetLanguage(language);
        check();
    }
}

TEST(SkinTexts, EveryKeyOfTheKeyFileHasAText) {
    const KeyTable names = parseKeys(test::readFile(skin + "Key.ini"));
    const TextTable english = texts("English.ini");
    for (auto name = names.begin(); name != names.end(); ++name) {
        for (const QString& key : *name)
            EXPECT_TRUE(english.contains(key)) << name.key().toStdString() << "=" << key.toStdString();
    }
}

TEST(SkinTexts, SharedSettingsAndTheirGroupsAndModulesHaveWords) {
    inBothLanguages([] {
        for (const tables::SimpleModeRow& row : tables::simpleModeItems) {
            const QString path = QString::fromStdString(std::string(row.item));
            for (const QString& name : path.split('/'))
                EXPECT_NE(KeyedText(name), "") << name.toStdString();
            EXPECT_NE(Text(path.split('/').value(1) + "_context"), "") << path.toStdString();
        }
        for (const char* name : {"contact details", "new contact", "users", "global settings"})
            EXPECT_NE(KeyedText(name), "") << name;
        for (const char* name : {"unlock", "widget", "icons", "contacts", "mms", "systemui"})
            EXPECT_EQ(FirstKey(name), QString("kMenu_") + name);
    });
}

template <typename Rows>
void expectPictureTexts(const Rows& rows) {
    for (const tables::PictureRow& row : rows) {
        const QString name = QString::fromStdString(std::string(row.name));
        EXPECT_NE(Text(name + "_context"), "") << row.name;
        EXPECT_EQ(FirstKey(name), name + "_context");
    }
}

TEST(SkinTexts, PicturesHaveCaptions) {
    inBothLanguages([] {
        expectPictureTexts(tables::launcherPictures);
        expectPictureTexts(tables::contactsPictures);
        expectPictureTexts(tables::phonePictures);
        expectPictureTexts(tables::mmsPictures);
        expectPictureTexts(tables::systemuiPictures);
        expectPictureTexts(tables::commonSettingPictures);
        expectPictureTexts(std::array{tables::telecomPicture, tables::mirroredTelecomPicture});
    });
}

TEST(SkinTexts, PictureGroupsHaveTitleAndPlaceAndFieldsHelp) {
    const QSet<QString> keys = keysOf(texts("English.ini"));
    for (const QString& key : keys) {
        const std::string name = key.toStdString();
        if (key.startsWith("key_simple_pic_")) {
            EXPECT_TRUE(keys.contains("simple_picpath_" + key.mid(15))) << name;
        }
        if (key.endsWith("_help")) {
            EXPECT_TRUE(keys.contains(key.chopped(5))) << name;
        }
    }
}

/// The keys that a file of the sources or a layout of the skin quotes. One that ends in "_" is the begin of a family.
QSet<QString> quotedKeys(const QString& text) {
    static const QRegularExpression form(
        R"re([">](k[A-Z]\w*|K_\w+|KWarn_\w+|kwarn_\w+|key_\w+|simple_picpath_\w*|[^"<>\n]+_context)["<])re");
    QSet<QString> keys;
    auto matches = form.globalMatch(text);
    while (matches.hasNext())
        keys.insert(matches.next().captured(1));
    return keys;
}

bool hasKey(const TextTable& table, const QString& key) {
    const auto begins = [&key](const QString& other) { return other.startsWith(key); };
    return table.contains(key) || (key.endsWith('_') && std::any_of(table.keyBegin(), table.keyEnd(), begins));
}

TEST(SkinTexts, KeysThatSourcesAndLayoutsQuoteAreThere) {
    const QSet<QString> otherNames{"kSpecial_for_init_select_language"}; // A key of config.ini.
    const TextTable english = texts("English.ini");
    std::size_t found = 0;
    for (const std::string folder : {ZDT_SOURCE_DIR "/src", ZDT_SOURCE_DIR "/skin"}) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            const std::string ending = entry.path().extension();
            if (ending != ".h" && ending != ".cpp" && ending != ".xml")
                continue;
            for (const QString& key : quotedKeys(QString::fromStdString(test::readFile(entry.path())))) {
                ++found;
                EXPECT_TRUE(otherNames.contains(key) || hasKey(english, key))
                    << entry.path() << ": " << key.toStdString();
            }
        }
    }
    EXPECT_GT(found, 15U) << "the messages of uploads at least";
    EXPECT_EQ(quotedKeys(R"(f("kConfirm", "key") <string>kWarn_x</string> "K_A" "a b_context" kNo "kno")"),
              (QSet<QString>{"kConfirm", "kWarn_x", "K_A", "a b_context"}));
}

} // namespace
} // namespace zdt
