#include "editor/keyRows.h"

#include "common/storeFixture.h"
#include "editor/fileChanges.h"
#include "editor/keyChange.h"
#include "editor/keyFilter.h"
#include "editor/moduleWords.h"
#include "model/resNode.h"
#include "modules/themeNode.h"
#include "store/keyText.h"
#include "support/fileComparison.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTest>

#include <algorithm>
#include <filesystem>
#include <set>

namespace zdt {
namespace {

const KeyRow* rowOf(const std::vector<KeyRow>& rows, const std::string& key) {
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const KeyRow& row) {
        return std::any_of(row.places.begin(), row.places.end(),
                           [&](const KeyPlace& each) { return each.key() == key; });
    });
    return found == rows.end() ? nullptr : &*found;
}

TEST(KeyRows, EveryLeafOfEveryKindOfThemeStandsInOneRow) {
    const test::TemporaryStore store;
    for (const test::ThemeKind& kind : test::allThemeKinds()) {
        const auto theme = store.create("Aurora", kind);
        const std::vector<KeyRow> rows = keyRowsOf(*theme);
        std::set<std::string> listed;
        std::size_t places = 0;
        for (const KeyRow& row : rows) {
            EXPECT_EQ(row.key, row.places.front().key());
            for (const KeyPlace& place : row.places) {
                ++places;
                listed.insert(place.key());
                const ResNode* node = theme->findNthNode(place.path(), place.number);
                ASSERT_NE(node, nullptr) << place.key();
                EXPECT_EQ(keyTextOf(*node), place.key());
                EXPECT_TRUE(node->isApplicable()) << place.key();
            }
        }
        EXPECT_EQ(listed.size(), places) << "no leaf twice";
        for (const ResNode* node : theme->tree().nodesInOrder()) {
            const bool isDescription = node->parent() == &theme->tree() && node->isLeaf();
            if (node->isLeaf() && node->valueKind() > 0 && !isDescription && node->isApplicable() &&
                node->parent()->isApplicable()) {
                EXPECT_TRUE(listed.contains(keyTextOf(*node))) << kind.name() << " " << keyTextOf(*node);
            }
        }
        ASSERT_TRUE(ThemeResource::deleteTheme("Aurora", store.root()));
    }
}

TEST(KeyRows, NewThemeDiffersNowhereFromItsDefaults) {
    const test::TemporaryStore store;
    for (const unsigned generation : {0U, 1U, 2U}) {
        const auto theme = store.create("T" + std::to_string(generation), {generation});
        for (const KeyRow& row : keyRowsOf(*theme)) {
            for (const KeyPlace& place : row.places) {
                const std::string file = isPlainFile(place.fallback) ? place.fallback : "";
                EXPECT_TRUE(isFile(row.kind) ? sameFiles(place.value, file)
                                             : sameText(row.kind, place.value, place.fallback))
                    << generation << " " << place.key() << " " << place.value << " " << place.fallback;
            }
        }
    }
}

TEST(KeyRows, ThemeOfNoGenerationHasNone) {
    const test::TemporaryStore store;
    const auto theme = store.create("Aurora");
    theme->tree().removeTypeBits(typeMask::allGenerations);
    EXPECT_TRUE(keyRowsOf(*theme).empty());
}

TEST(KeyRows, SharedKeysAreOneRowAndNamesakesTwo) {
    const test::TemporaryStore store;
    const auto theme = store.create("Aurora", {0});
    const std::vector<KeyRow> rows = keyRowsOf(*theme);
    const KeyRow* shared = rowOf(rows, "telecom/commonSetting/text/ovui_accent");
    const KeyRow* other = rowOf(rows, "telecom/commonSetting/text/ovui_text_dark");
    const KeyRow* row = shared ? shared : other;
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->module, sharedModule);
    EXPECT_EQ(row->places.front().block.front(), "contacts");
    EXPECT_EQ(row->places.size(), 6U) << "the launcher of generation 5 has none";

    const KeyRow* first = rowOf(rows, "contacts/image/profile_simple_card_background.9.png");
    const KeyRow* second = rowOf(rows, "contacts/image/profile_simple_card_background.9.png#2");
    ASSERT_TRUE(first && second);
    EXPECT_NE(first->places.front().file, second->places.front().file);
    const std::string before = first->value();
    EXPECT_TRUE(replaceFile(*theme, *second, before).isNone());
    EXPECT_TRUE(sameFiles(second->value(), before));
    EXPECT_EQ(rowOf(rows, "title"), nullptr) << "the description has a page of its own";
}

TEST(KeyRows, TextsAreComparedByWhatTheyMean) {
    const struct {
        KeyKind kind;
        const char* one;
        const char* other;
        bool same;
    } cases[] = {
        {KeyKind::colour, "#ABCDEF", "#abcdef", true},    {KeyKind::colour, "#FFabcdef", "#ABCDEF", true},
        {KeyKind::colour, "#feabcdef", "#abcdef", false}, {KeyKind::colour, "#ffabcd", "#abcd", false},
        {KeyKind::text, "True", "true", false},           {KeyKind::text, "", "", true},
    };
    for (const auto& [kind, one, other, same] : cases)
        EXPECT_EQ(sameText(kind, one, other), same) << one << " " << other;
}

TEST(KeyFilter, LeavesWhatHasAllWordsAndSorts) {
    std::vector<KeyRow> rows;
    std::vector<KeyWords> words;
    for (const auto& [module, name, value, searched] :
         {std::array{"mms", "b_colour", "#112233", "b_colour messages bubble"},
          std::array{"mms", "a_colour", "#445566", "a_colour messages"},
          std::array{"phone", "c_colour", "#11AABB", "c_colour phone"}}) {
        KeyRow row;
        row.module = module;
        row.kind = KeyKind::colour;
        row.places.push_back({{module, "text"}, name, 1, value, {}, {}});
        rows.push_back(row);
        words.push_back({name, module, {}, {}, {}, searched});
    }
    const struct {
        KeyFilter filter;
        std::vector<int> shown;
    } cases[] = {
        {{}, {1, 0, 2}},
        {{"mms", {}, false, true}, {0, 1}},
        {{{}, "MESSAGES  bubble ", false, false}, {0}},
        {{{}, "#11", false, false}, {0, 2}},
        {{"mms", "11aabb", false, false}, {}},
        {{{}, "colour", true, false}, {2}},
    };
    for (const auto& [filter, shown] : cases)
        EXPECT_EQ(shownRows(rows, words, filter, [](int index) { return index == 2; }), shown)
            << filter.text.toStdString();
}

class KeyChangeTest : public testing::Test {
protected:
    [[nodiscard]] KeyRow row(const std::string& key) const {
        const std::vector<KeyRow> rows = keyRowsOf(*theme);
        const KeyRow* found = rowOf(rows, key);
        return found ? *found : throw std::runtime_error("no row " + key);
    }

    test::TemporaryStore store;
    std::unique_ptr<ThemeResource> theme = store.create("Aurora");
};

TEST_F(KeyChangeTest, SharedValueIsSetEverywhereOrNowhere) {
    const KeyRow before = row("contacts/commonSetting/text/ovui_primary");
    EXPECT_EQ(before.places.size(), 7U);
    EXPECT_EQ(changeKey(*theme, before, "red"), returnCode::patternMismatch);
    EXPECT_TRUE(differingCopies(row(before.key)).empty());
    EXPECT_EQ(changeKey(*theme, before, "#123456"), 0);
    for (const KeyPlace& place : row(before.key).places)
        EXPECT_EQ(place.value, "#123456") << place.key();

    // One block of seven that can't be written.
    const std::string folder = store.root() + "res/Aurora/com.android.systemui";
    std::filesystem::remove_all(folder);
    store.write("res/Aurora/com.android.systemui", "in the way");
    EXPECT_EQ(changeKey(*theme, before, "#654321"), returnCode::copyFailed);
    for (const KeyPlace& place : row(before.key).places)
        EXPECT_EQ(place.value, "#123456") << place.key();
    EXPECT_EQ(test::readFile(store.root() + "res/Aurora/com.android.mms/framework-res-zdext/theme.xml").find("#654321"),
              std::string::npos);
}

TEST_F(KeyChangeTest, SharedPictureIsSetEverywhereOrNowhere) {
    const std::vector<KeyRow> rows = keyRowsOf(*theme);
    const auto found = std::find_if(rows.begin(), rows.end(), [](const KeyRow& each) {
        return each.kind == KeyKind::picture && each.places.size() == 7 && each.sizes.empty();
    });
    ASSERT_NE(found, rows.end());
    const KeyRow before = *found;
    const std::string picture = row("icons/system/static/com.android.mms.png").value();
    EXPECT_TRUE(replaceFile(*theme, before, picture).isNone());
    for (const KeyPlace& place : before.places)
        EXPECT_TRUE(sameFiles(theme->getValueNth(place.path(), place.number), picture)) << place.key();
    EXPECT_EQ(resetKey(*theme, before), 0);
    for (const KeyPlace& place : before.places)
        EXPECT_TRUE(sameFiles(theme->getValueNth(place.path(), place.number), place.fallback)) << place.key();

    const std::string folder = store.root() + "res/Aurora/com.android.systemui";
    std::filesystem::remove_all(folder);
    store.write("res/Aurora/com.android.systemui", "in the way");
    EXPECT_EQ(replaceFile(*theme, before, picture).code, returnCode::cannotMakeFolder);
    const KeyPlace& first = before.places.front();
    EXPECT_TRUE(sameFiles(theme->getValueNth(first.path(), first.number), first.fallback));

    // What doesn't fit its place is the author's all the same.
    const std::string path = "res/Aurora/" + first.file;
    ASSERT_TRUE(removeFile(store.path(path)));
    store.write(path, "no picture");
    theme = store.open("Aurora");
    EXPECT_EQ(replaceFile(*theme, row(before.key), picture).code, returnCode::cannotMakeFolder);
    EXPECT_EQ(test::readFile(store.path(path)), "no picture");
}

TEST_F(KeyChangeTest, DrawnPicturesAreTheProgramsOwn) {
    const std::string preview = row("preview/preview_mms_0.jpg").value();
    for (const char* name : {"cover.jpg", "icon_small.jpg", "icon_small_1.jpg"}) {
        const KeyRow drawn = row(std::string("preview/") + name);
        EXPECT_EQ(replaceFile(*theme, drawn, preview).message, "kList_drawn") << name;
        EXPECT_FALSE(canReset(drawn, true)) << name;
    }
}

TEST_F(KeyChangeTest, JpegMadeOfAPngKeepsTheLimit) {
    // A chequered picture is small as a PNG and large as a JPEG.
    QImage chequered(1080, 2160, QImage::Format_RGB32);
    for (int y = 0; y < chequered.height(); ++y) {
        for (int x = 0; x < chequered.width(); ++x)
            chequered.setPixel(x, y, (x / 2 + y / 3) % 2 == 0 ? qRgb(255, 0, 0) : qRgb(0, 255, 255));
    }
    const std::string png = store.path("chequered.png");
    ASSERT_TRUE(chequered.save(QString::fromStdString(png)));
    const KeyRow before = row("preview/preview_mms_0.jpg");
    ASSERT_LT(fileSize(png), before.maxBytes);
    const FileRefusal refusal = replaceFile(*theme, before, png);
    const std::string stored = row(before.key).value();
    if (refusal.isNone())
        EXPECT_LE(fileSize(stored), before.maxBytes);
    else
        EXPECT_EQ(refusal.code, returnCode::wrongByteSize);
    EXPECT_EQ(QImage(QString::fromStdString(stored)).size(), chequered.size());
}

TEST_F(KeyChangeTest, FilesAreRefusedByTheirPlace) {
    const std::string icon = row("icons/system/static/com.android.mms.png").value();
    const std::string preview = row("preview/preview_mms_0.jpg").value();
    store.write("notes.txt", "no picture");
    store.write("broken.png", "no picture");
    store.write("图.png", test::readFile(icon));
    store.write("xy.9.png", test::readFile(icon));
    store.write("large.png", test::readFile(icon) + std::string(2 << 20, ' '));
    const struct {
        const char* key;
        std::string file;
        int code;
        const char* message;
    } cases[] = {
        {"icons/system/static/com.android.email.png", icon, 0, ""},
        {"icons/system/static/com.android.email.png", preview, returnCode::wrongKind, ""},
        {"icons/system/static/com.android.email.png", store.path("notes.txt"), 0, "kWarn_upload_jpgorpng_pic"},
        {"icons/system/static/com.android.email.png", store.path("broken.png"), returnCode::unreadablePicture, ""},
        {"icons/system/static/com.android.email.png", store.path("图.png"), 0, "kWarn_upload_include_ch"},
        {"icons/system/static/com.android.email.png", store.path("large.png"), 0, "kWarn_upload_lessthenoneM_pic"},
        {"icons/system/static/com.android.email.png", store.path("xy.9.png"), 0, "kWarn_replace_right_format_picture"},
        {"icons/system/static/com.android.email.png", store.path("none.png"), returnCode::missingFile, ""},
        {"preview/preview_mms_0.jpg", icon, returnCode::wrongDimensions, ""},
        {"preview/preview_mms_0.jpg", store.path("large.png"), 0, "kWarn_upload_lessthenone300_pic"},
        {"unlock/video/image_set/unlock.mp4", icon, 0, "kWarn_upload_correct_unlock_video_nine_files"},
    };
    for (const auto& [key, file, code, message] : cases) {
        const FileRefusal refusal = replaceFile(*theme, row(key), file);
        EXPECT_EQ(refusal.code, code) << key << " " << file;
        EXPECT_EQ(refusal.message, message) << key << " " << file;
    }
}

TEST_F(KeyChangeTest, LockStyleChangesTheKindOfLock) {
    EXPECT_EQ(changeKey(*theme, row("unlock/config/style"), "magazine"), 0);
    EXPECT_EQ(theme->lockScreenType(), "magazine");
    for (const char* kind : {"custom", "zooking", "Slide", ""})
        EXPECT_EQ(changeKey(*theme, row("unlock/config/style"), kind), returnCode::notAllowed) << kind;
    EXPECT_EQ(resetKey(*theme, row("unlock/config/style")), 0);
    EXPECT_EQ(theme->lockScreenType(), "amazing");
}

TEST_F(KeyChangeTest, TextsThatLeadOutsideOrBreakTheFileAreRefused) {
    for (const char* value : {"", "..", "../other", "a/b", "a\\b", ".hidden", "a\x01"})
        EXPECT_EQ(changeKey(*theme, row("unlock/config/dynamicPath"), value), returnCode::notAllowed) << value;
    EXPECT_EQ(changeKey(*theme, row("unlock/config/dynamicPath"), "other"), 0);
    EXPECT_EQ(changeKey(*theme, row("unlock/config/title"), "a\x01"), returnCode::notAllowed);
    EXPECT_EQ(changeKey(*theme, row("unlock/config/title"), "Night & day"), 0);
}

TEST(FileChanges, TellsAtOnceWhatItKnows) {
    const test::TemporaryFolder folder;
    folder.write("one", "abc");
    folder.write("same", "abc");
    folder.write("other", "abd");
    folder.write("longer", "abcd");
    FileChanges changes;
    EXPECT_EQ(changes.differs("", ""), false);
    EXPECT_EQ(changes.differs(folder.path("one"), ""), true);
    EXPECT_EQ(changes.differs(folder.path("one"), folder.path("longer")), true);
    EXPECT_EQ(changes.differs(folder.path("one"), folder.path("same")), std::nullopt);
    EXPECT_EQ(changes.differs(folder.path("one"), folder.path("other")), std::nullopt);
    changes.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return changes.differs(folder.path("one"), folder.path("other")).has_value(); }));
    EXPECT_EQ(changes.differs(folder.path("one"), folder.path("same")), false);
    EXPECT_EQ(changes.differs(folder.path("one"), folder.path("other")), true);
}

} // namespace
} // namespace zdt
