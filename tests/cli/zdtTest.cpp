#include "cli/application.h"
#include "common/mp4Bytes.h"
#include "common/storeFixture.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>

#include <sstream>

namespace zdt {
namespace {

using nlohmann::json;
using test::readFile;
using test::TemporaryStore;

struct Result {
    int status = -1;
    std::string out;
    std::string err;
};

class ZdtTest : public testing::Test {
protected:
    Result run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"zdt", "--root", store.root()});
        return runBare(arguments);
    }

    static Result runBare(const std::vector<std::string>& arguments) {
        std::vector<const char*> argv;
        for (const std::string& argument : arguments)
            argv.push_back(argument.c_str());
        std::ostringstream out;
        std::ostringstream err;
        const int status = runZdt(static_cast<int>(argv.size()), argv.data(), out, err);
        return {status, out.str(), err.str()};
    }

    json document(std::vector<std::string> arguments) const {
        arguments.emplace_back("--json");
        const Result result = run(std::move(arguments));
        return json::parse(result.out, nullptr, false);
    }

    void expectRefusal(const std::vector<std::string>& arguments, const std::string& line) const {
        SCOPED_TRACE(testing::PrintToString(arguments));
        const Result result = run(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, "zdt: " + line + "\n");
    }

    TemporaryStore store;
};

TEST_F(ZdtTest, WrongUsageEndsWithTwoAndOneLine) {
    store.create("T");
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{},
                                               {"nothing"},
                                               {"list", "extra"},
                                               {"new", "A"},
                                               {"new", "--generation", "9"},
                                               {"new", "A", "--generation", "7"},
                                               {"new", "A", "--generation", "0"},
                                               {"get", "T"},
                                               {"set", "T"},
                                               {"set", "T", "title"},
                                               {"set", "T", "title", "a", "author"},
                                               {"dynamic", "T", "moon", "on"},
                                               {"dynamic", "T", "clock", "maybe"},
                                               {"generation", "T", "6"},
                                               {"simple"},
                                               {"simple", "T", "launcher"},
                                               {"simple", "T", "launcher", "folder"},
                                               {"simple", "T", "launcher", "folder", "app text"},
                                               {"simple", "T", "launcher", "folder", "app text", "#111111", "more"},
                                               {"check"},
                                               {"list", "--frobnicate"},
                                               {"list", "list"}}) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        const Result result = run(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(result.err.starts_with("zdt: ")) << result.err;
        EXPECT_EQ(result.err.find('\n'), result.err.size() - 1) << result.err;
    }
    EXPECT_EQ(ThemeResource::listThemes(store.root()), std::vector<std::string>{"T"});
}

TEST_F(ZdtTest, HelpAndVersionAreResults) {
    EXPECT_EQ(run({"--version"}).out, "zdt 0.1.0\n");
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{"--help"}, {"set", "--help"}, {"new", "--help"}}) {
        const Result result = run(arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_NE(result.out.find("zdt"), std::string::npos);
        EXPECT_EQ(result.err, "");
    }
}

TEST_F(ZdtTest, NewThemesAreListedAndTold) {
    EXPECT_EQ(run({"list"}).out, "");
    EXPECT_EQ(run({"new", "b", "--generation", "5", "--small", "--english"}).status, 0);
    EXPECT_EQ(run({"new", "主 题", "--generation", "9"}).status, 0);
    EXPECT_EQ(run({"list"}).out, "b\n主 题\n");
    EXPECT_EQ(document({"list"}), (json{"b", "主 题"}));
    expectRefusal({"new", "b", "--generation", "9"}, "b: there is a theme of that name already");
    expectRefusal({"new", "..", "--generation", "9"}, "..: the name or number isn't allowed (-9)");
    expectRefusal({"new", "", "--generation", "9"}, ": the name or number isn't allowed (-9)");

    json info = document({"info", "b"});
    EXPECT_GT(info["bytes"].get<int>(), 100000);
    info.erase("bytes");
    EXPECT_EQ(info, json::parse(R"({"name": "b", "generation": 0, "mask": "0xa0000001", "big": false, "chinese": false,
        "description": {"title": "English Name", "title-cn": "Chinese Name", "author": "Author Name",
            "designer": "Designer Name", "screen": "FHD", "version": "5.0.1", "font": "Default", "font-cn": "默认",
            "briefinfo": ""},
        "dynamic": {"calendar": false, "deskclock": false, "weather": false}})"));
    EXPECT_EQ(document({"info", "主 题"})["mask"], "0x50000004");
    EXPECT_NE(run({"info", "b"}).out.find("generation: 5\n"), std::string::npos);
}

TEST_F(ZdtTest, NameThatIsNoThemeIsRefusedBeforeAnythingIsWritten) {
    for (const std::string name : {"nobody", "..", "", "../res"}) {
        const std::string line = name + ": there is no theme of that name";
        expectRefusal({"info", name}, line);
        expectRefusal({"tree", name}, line);
        expectRefusal({"get", name, "title"}, line);
        expectRefusal({"set", name, "title", "x"}, line);
        expectRefusal({"reset", name, "title"}, line);
        expectRefusal({"simple", name}, line);
        expectRefusal({"simple", name, "launcher", "folder", "app text", "#111111"}, line);
        expectRefusal({"check", name}, line);
        expectRefusal({"export", name, store.path("x.zdt")}, line);
        expectRefusal({"delete", name}, line);
        expectRefusal({"generation", name, "9"}, line);
        expectRefusal({"dynamic", name, "clock", "on"}, line);
    }
    EXPECT_FALSE(pathExists(store.path("config")));
}

TEST_F(ZdtTest, TreeListsEveryNodeWithItsRules) {
    store.create("T");
    const json tree = document({"tree", "T"});
    std::map<std::string, json> nodes;
    std::vector<std::string> order;
    for (const json& node : tree) {
        EXPECT_TRUE(nodes.emplace(node["key"], node).second) << node["key"] << " is listed twice";
        order.push_back(node["key"]);
    }
    EXPECT_EQ(order.front(), "unlock");
    EXPECT_EQ(order.back(), "briefinfo");
    EXPECT_EQ(nodes["launcher/text/navigation_blackspot_normal"], json::parse(R"json({
        "key": "launcher/text/navigation_blackspot_normal", "class": "ColorTextResNode", "mask": "0xf0000007",
        "applicable": true, "value": "#4D242424", "path": "", "leaf": true,
        "regex": "#([0-9a-fA-F]{2})?([0-9a-fA-F]{6})", "maxAlpha": 77})json"));
    EXPECT_EQ(nodes["launcher/image/ic_edit_share.9.png#2"]["mask"], "0xf0000004");
    EXPECT_EQ(nodes["launcher/image/ic_edit_share.9.png"]["applicable"], false);
    const json picture = nodes["wallpaper/image/home_wallpaper_0.jpg"];
    EXPECT_EQ(picture["sizes"], (json{{2160, 2161, 2160, 2161}}));
    EXPECT_EQ(picture["kinds"], 2);
    EXPECT_EQ(picture["maxBytes"], 1048576);
    EXPECT_EQ(picture["value"], store.path("res/T/wallpaper/home_wallpaper_0.jpg"));
    EXPECT_EQ(nodes["mms"]["class"], "ResNode");
    EXPECT_EQ(nodes["mms"]["leaf"], false);
    EXPECT_EQ(nodes["version"]["regex"], R"((5|8|9)\.\d\.\d+)");
    const std::string lines = run({"tree", "T"}).out;
    EXPECT_EQ(static_cast<std::size_t>(std::count(lines.begin(), lines.end(), '\n')), tree.size());
}

TEST_F(ZdtTest, ValuesAreSetAndReadBack) {
    store.create("T");
    EXPECT_EQ(run({"get", "T", "launcher/text/widget_text_color"}).out, "#ffffff\n");
    const std::string picture = store.write("my icon.png", test::pngHeader(192, 192));
    EXPECT_EQ(run({"set", "T", "launcher/text/widget_text_color", "#80aabbcc", "title", "[a,b]", "briefinfo", "",
                   "icons/system/static/com.android.browser.png", picture})
                  .err,
              "");
    EXPECT_EQ(document({"get", "T", "launcher/text/widget_text_color"}), "#80aabbcc");
    EXPECT_EQ(run({"get", "T", "title"}).out, "[a,b]\n");
    EXPECT_EQ(test::readFile(store.path("res/T/icons/com.android.browser.png")), test::pngHeader(192, 192));
    EXPECT_EQ(run({"set", "--json", "T", "--", "title", "--json"}).status, 0);
    EXPECT_EQ(run({"get", "T", "title"}).out, "--json\n") << "behind -- nothing is an option";
    EXPECT_EQ(
        run({"set", "T", "launcher/image/ic_edit_share.9.png#2", store.write("s.9.png", test::pngHeader(9, 9))}).err,
        "");
    EXPECT_EQ(run({"get", "T", "launcher/image/ic_edit_share.9.png"}).out,
              store.path("res/T/com.zendro.android.launcher/res/drawable-xxhdpi/ic_edit_share.9.png") + "\n");
    EXPECT_EQ(run({"reset", "T", "icons/system/static/com.android.browser.png"}).status, 0);
    EXPECT_NE(test::readFile(store.path("res/T/icons/com.android.browser.png")), test::pngHeader(192, 192));
}

TEST_F(ZdtTest, RefusalTellsWhatAndWhyAndChangesNothing) {
    store.create("T");
    store.create("S", {2, true});
    const std::string small = store.write("small.jpg", test::jpegHeader(10, 10));
    expectRefusal({"set", "T", "wallpaper/image/home_wallpaper_0.jpg", small},
                  "wallpaper/image/home_wallpaper_0.jpg: the picture's dimensions aren't allowed (-22)");
    expectRefusal({"set", "T", "title", ""}, "title: the value is empty (-18)");
    expectRefusal({"set", "T", "title", "a\xff"}, "title: the value isn't UTF-8");
    expectRefusal({"set", "T", "unlock/config/style", "slide"},
                  "unlock/config/style: it follows the kind of lock screen");
    expectRefusal({"set", "T", "launcher/text", "x"}, "launcher/text: it isn't a single value");
    expectRefusal({"set", "T", "unlock/amazing", "x"}, "unlock/amazing: it isn't a single value");
    for (const std::string key : {"nothing", "", "/", "launcher//text", "title#2", "title#0", "launcher/text/"})
        expectRefusal({"get", "T", key}, key + ": there is no such key in this theme (-14)");
    expectRefusal({"get", "S", "mms/text/chips_bg_color"},
                  "mms/text/chips_bg_color: the key takes no part in this theme (-14)");
    expectRefusal({"set", "S", "mms/text/chips_bg_color", "#123456"},
                  "mms/text/chips_bg_color: the key takes no part in this theme (-14)");
    expectRefusal({"reset", "T", "title"}, "title: only a file can be put back to the template's");
    expectRefusal(
        {"reset", "T", "unlock/video/image_set/unlock.mp4"},
        "unlock/video/image_set/unlock.mp4: there is no default to restore, or the file couldn't be removed (-1)");
    store.write("config/T_config.txt", "type=big\n");
    expectRefusal({"info", "T"}, "T: the type in the settings is no number: big");
}

TEST_F(ZdtTest, SettingStopsAtTheFirstRefusalAndKeepsWhatCameBefore) {
    store.create("T");
    EXPECT_EQ(run({"set", "T", "launcher/text/checked", "#111111", "launcher/text/calendar_dynamic", "red",
                   "launcher/text/widget_text_color", "#333333"})
                  .status,
              1);
    EXPECT_EQ(run({"get", "T", "launcher/text/checked"}).out, "#111111\n");
    EXPECT_EQ(run({"get", "T", "launcher/text/calendar_dynamic"}).out, "#ffffff\n");
    EXPECT_EQ(run({"get", "T", "launcher/text/widget_text_color"}).out, "#ffffff\n");
}

TEST_F(ZdtTest, SharedSettingsAreListedAndSet) {
    store.create("T");
    const json before = document({"simple", "T"});
    ASSERT_EQ(before.size(), 32U);
    EXPECT_EQ(before[1], json::parse(R"({"module": "launcher", "group": "folder", "item": "app text",
        "value": "#ffffff", "sources": ["launcher/text/folder_app_text_color"]})"));
    EXPECT_EQ(run({"simple", "T", "commonSetting", "dial", "highlight color", "#135790"}).err, "");
    const json after = document({"simple", "T"});
    for (std::size_t index = 0; index < after.size(); ++index) {
        const bool isSet = after[index]["module"] == "commonSetting" && after[index]["item"] == "highlight color";
        EXPECT_EQ(after[index]["value"], isSet ? json("#135790") : before[index]["value"]) << after[index]["item"];
    }
    EXPECT_EQ(run({"get", "T", "telecom/commonSetting/text/ovui_accent"}).out, "#135790\n");
    EXPECT_EQ(run({"simple", "T", "launcher", "folder", "shadow switch", "true"}).status, 0);
    const std::string lines = run({"simple", "T"}).out;
    EXPECT_NE(lines.find("launcher\tfolder\tshadow switch\ttrue\n"), std::string::npos);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 32);
}

TEST_F(ZdtTest, SharedSettingIsRefusedWithItsReason) {
    store.create("T");
    store.create("S", {2, true});
    const auto refuse = [&](const std::string& theme, const std::vector<std::string>& words, const std::string& why) {
        std::vector<std::string> arguments{"simple", theme};
        arguments.insert(arguments.end(), words.begin(), words.end());
        expectRefusal(arguments, words[0] + "/" + words[1] + "/" + words[2] + ": " + why);
    };
    const std::string unknown = "there is no such setting; \"zdt simple NAME\" lists them (-14)";
    refuse("T", {"nothing", "dial", "highlight color", "#111111"}, unknown);
    refuse("T", {"commonSetting", "nothing", "highlight color", "#111111"}, unknown);
    refuse("T", {"commonSetting", "dial", "", "#111111"}, unknown);
    refuse("S", {"mms", "MMS", "first level icon text", "#111111"}, "the key takes no part in this theme (-14)");
    refuse("T", {"mms", "MMS", "first level icon text", "red"},
           "the value doesn't have the form that the key asks for (-19)");
    refuse("T", {"launcher", "folder", "shadow switch", "a\x01"}, "the value holds a control character");
    refuse("T", {"launcher", "folder", "shadow switch", "a\xff"}, "the value isn't UTF-8");
    const std::string folder = store.path("res/T/com.android.phone/framework-res-zdext");
    ASSERT_TRUE(removeTree(folder));
    store.write("res/T/com.android.phone/framework-res-zdext", "a file in the folder's place");
    refuse("T", {"commonSetting", "dial", "highlight color", "#135790"},
           "it couldn't be written everywhere, and is as it was");
    for (const char* module : {"com.android.contacts", "com.android.systemui"})
        EXPECT_EQ(
            readFile(store.path("res/T/" + std::string(module) + "/framework-res-zdext/theme.xml")).find("135790"),
            std::string::npos);
}

TEST_F(ZdtTest, CheckListsWhatIsMissingAndExportRefusesIt) {
    store.create("T");
    EXPECT_EQ(run({"check", "T"}).status, 0);
    EXPECT_EQ(document({"check", "T"}), json::array());
    ASSERT_TRUE(removeFile(store.path("res/T/preview/cover.jpg")));
    const Result result = run({"check", "T"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out,
              "preview/cover.jpg: the file doesn't exist, or it is no plain file (-2) [preview/cover.jpg]\n");
    EXPECT_EQ(document({"check", "T"}), (json{{{"key", "preview/cover.jpg"},
                                               {"path", "preview/cover.jpg"},
                                               {"code", -2},
                                               {"reason", "the file doesn't exist, or it is no plain file"}}}));
    EXPECT_EQ(run({"export", "T", store.path("T.zdt")}).status, 1);
    EXPECT_FALSE(pathExists(store.path("T.zdt")));
    EXPECT_EQ(run({"reset", "T", "preview/cover.jpg"}).status, 0);
    EXPECT_EQ(run({"export", "T", store.path("T.zdt")}).status, 0);
    expectRefusal({"export", "T", store.path("no/T.zdt")},
                  store.path("no/T.zdt") + ": the package couldn't be written");
    expectRefusal({"export", "T", store.path("res")}, store.path("res") + ": something stands there that is no file");
}

TEST_F(ZdtTest, PackageIsImportedUnderItsNameAndReplacesOnlyWhenTold) {
    store.create("T");
    ASSERT_EQ(run({"set", "T", "title", "First"}).status, 0);
    ASSERT_EQ(run({"export", "T", store.path("Other.zdt")}).status, 0);
    EXPECT_EQ(run({"import", store.path("Other.zdt")}).out, "Other\n");
    ASSERT_EQ(run({"set", "Other", "title", "Second"}).status, 0);
    expectRefusal({"import", store.path("Other.zdt")},
                  "Other: there is a theme of that name already; --replace puts the package in its place");
    EXPECT_EQ(run({"get", "Other", "title"}).out, "Second\n");
    EXPECT_EQ(document({"import", "--replace", store.path("Other.zdt")}), "Other");
    EXPECT_EQ(run({"get", "Other", "title"}).out, "First\n");
    expectRefusal({"import", store.path("missing.zdt")}, store.path("missing.zdt") + ": there is no such file");
    expectRefusal({"import", store.write("No.zdt", "text")},
                  store.path("No.zdt") + ": it isn't a theme package, or it is damaged");
    EXPECT_EQ(run({"delete", "Other"}).status, 0);
    EXPECT_EQ(run({"list"}).out, "T\n");
}

TEST_F(ZdtTest, GenerationAndDynamicIconsAreChangedForGood) {
    store.create("T", {1, false, false});
    const Result moved = run({"generation", "T", "9"});
    EXPECT_EQ(moved.status, 0);
    EXPECT_NE(moved.out.find("wallpaper/image/home_wallpaper_0.jpg: "), std::string::npos);
    EXPECT_EQ(document({"info", "T"})["generation"], 2);
    EXPECT_EQ(document({"info", "T"})["description"]["version"], "9.0.100");
    EXPECT_EQ(document({"info", "T"})["chinese"], false) << "a theme keeps its language";
    EXPECT_EQ(document({"generation", "T", "8"}), json::array());
    for (const std::string icon : {"calendar", "clock", "weather"}) {
        EXPECT_EQ(run({"dynamic", "T", icon, "on"}).status, 0);
        const std::string field = icon == "clock" ? "deskclock" : icon;
        EXPECT_EQ(document({"info", "T"})["dynamic"][field], true);
        EXPECT_EQ(run({"dynamic", "T", icon, "off"}).status, 0);
        EXPECT_EQ(document({"info", "T"})["dynamic"][field], false);
    }
}

TEST_F(ZdtTest, WhatAThemeCannotKeepIsRefused) {
    store.create("T");
    expectRefusal({"set", "T", "title", "a\x01"}, "title: the value holds a control character");
    expectRefusal({"set", "T", "title", "a\rb"}, "title: the value holds a control character");
    expectRefusal({"set", "T", "title", " \t "}, "title: the value is nothing but blanks");
    expectRefusal({"set", "T", "wallpaper/ext.properties/wallpaper_video", ""},
                  "wallpaper/ext.properties/wallpaper_video: the value is empty (-18)");
    EXPECT_EQ(run({"set", "T", "briefinfo", "one\ntwo"}).status, 0);
    EXPECT_EQ(run({"get", "T", "briefinfo"}).out, "one\ntwo\n");
    EXPECT_NE(run({"info", "T"}).out.find("briefinfo: one\\ntwo\n"), std::string::npos) << "one item a line";
    const Result result = run({"info", "\x1b[31m\xff"});
    EXPECT_EQ(result.err, "zdt: ?[31m?: there is no theme of that name\n") << "a terminal isn't steered";
}

TEST_F(ZdtTest, PackageNeverTakesThePlaceOfSomethingElse) {
    store.create("T");
    for (const std::string file : {"res/T/description.xml", "config/T_config.txt", "res/new.zdt", "tmp/new.zdt"})
        expectRefusal({"export", "T", store.path(file)},
                      store.path(file) +
                          ": a package can't stand among the themes, their settings or the work in tmp/");
    ASSERT_EQ(::mkfifo(store.path("pipe").c_str(), 0600), 0);
    expectRefusal({"export", "T", store.path("pipe")}, store.path("pipe") + ": something stands there that is no file");
    EXPECT_EQ(run({"check", "T"}).status, 0);

    ASSERT_EQ(run({"export", "T", store.path("F.zdt")}).status, 0);
    store.write("res/F", "a plain file");
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"import", store.path("F.zdt")},
                                                      {"import", "--replace", store.path("F.zdt")},
                                                      {"new", "F", "--generation", "9"}})
        expectRefusal(arguments, "F: something stands in its place that is no theme: " + store.path("res/F"));
    EXPECT_EQ(test::readFile(store.path("res/F")), "a plain file");
}

TEST_F(ZdtTest, OptionsMayStandAnywhereBeforeTheDashes) {
    store.create("list");
    const std::string expected = "[\"list\"]\n";
    EXPECT_EQ(runBare({"zdt", "--json", "--root", store.root(), "list"}).out, expected);
    EXPECT_EQ(runBare({"zdt", "list", "--root", store.root(), "--json"}).out, expected);
    EXPECT_EQ(runBare({"zdt", "--root", store.root().substr(0, store.root().size() - 1), "list", "--json"}).out,
              expected);
    EXPECT_EQ(run({"get", "list", "title", "--json"}).out, "\"English Name\"\n") << "a theme may bear a command's name";
}

TEST_F(ZdtTest, LockScreenIsShownAndChangesItsKind) {
    store.create("T", {0});
    const json lock = document({"lock", "T"});
    EXPECT_EQ(lock["type"], "amazing");
    EXPECT_EQ(lock["layout"], "layout1");
    EXPECT_EQ(lock["screenHeight"], 1920);
    EXPECT_EQ(lock["unlockMode"], 2);
    EXPECT_EQ(lock["hasWallpaper"], false);
    std::map<std::string, json> byKind;
    for (const json& element : lock["elements"])
        byKind.emplace(element["kind"], element);
    EXPECT_EQ(byKind["hour1"]["resources"], json({"number_0.png", "number_1.png", "number_2.png"}));
    EXPECT_EQ(byKind["unlocker"]["unlockerKind"], 2);
    EXPECT_EQ(byKind["unlocker"]["children"][1]["children"][1]["attributes"]["type"], "unlock");
    EXPECT_NE(run({"lock", "T"}).out.find("unlocker (kind 2)\tunlocker\tname=unlock_up"), std::string::npos);

    EXPECT_EQ(run({"lock", "T", "slide"}).status, 0);
    EXPECT_EQ(document({"lock", "T"})["type"], "slide");
    const Result unknown = run({"lock", "T", "vidoe"});
    EXPECT_EQ(unknown.status, 0) << "a phone may know more kinds";
    EXPECT_NE(unknown.err.find("vidoe is no kind of lock screen that zdt knows"), std::string::npos);
    expectRefusal({"lock", "T", ""}, "T: \"\" is no kind of lock screen (-9)");
    expectRefusal({"lock", "T", "AMAZING"}, "T: \"AMAZING\" is no kind of lock screen (-9)");
    expectRefusal({"lock", "None", "slide"}, "None: there is no theme of that name");
    EXPECT_EQ(document({"lock", "T"})["type"], "vidoe");
    store.write("res/T/unlock/theme.xml", "<ZDTheme><cut");
    EXPECT_EQ(run({"lock", "T", "amazing"}).status, 0) << "this is how a damaged one is mended";
    EXPECT_EQ(run({"check", "T"}).out, "");
}

TEST_F(ZdtTest, DocumentsThatWouldStopTheParserAreDamagedOnes) {
    store.create("T");
    std::string attributes;
    for (int number = 0; number < 60000; ++number)
        attributes += " a" + std::to_string(number) + "=\">\"";
    const std::string source = "'" + std::string(3000, 'a') + "'+system.time.hour2+system.time.hour2+system.time.hour2";
    std::string names;
    for (int number = 0; number < 200; ++number)
        names += "<image src=\"" + source + "\"/>";
    for (const std::string& content : {"<image" + attributes + "/>", names, std::string("<text src='a&#27;b'/>"),
                                       std::string("<text src='a&#x0;b'/>"), std::string("<text src='a\x01'/>")}) {
        store.write("res/T/unlock/layout-hdpi/layout1.xml", "<layout>" + content + "</layout>");
        const Result result = run({"lock", "T"});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, "zdt: note: the layout is damaged and can't be read\n") << content.substr(0, 40);
    }
}

TEST_F(ZdtTest, TextsOfALayoutAreComputed) {
    const struct {
        std::vector<std::string> arguments;
        json result;
    } cases[] = {
        {{"eval", "2+3*4"}, 14},
        {{"eval", "--", "-7/2"}, 3},
        {{"eval", "1+(2%3)"}, 0},
        {{"eval", "7/0"}, 0},
        {{"eval", ""}, 0},
        {{"fold", "system.screen_height - 100 - 20", "--height", "1920"}, "system.screen_height-120"},
        {{"fold", "--height", "2160", "--", "-5"}, "-5"},
        {{"fold", "1920-240", "--height", "2160"}, "1680"},
        {{"expand", "system.time.min1/2"}, {"0", "1", "2"}},
        {{"expand", "a.png"}, {"a.png"}},
        {{"expand", "'n'+system.time.hour2%3+'.png'"}, {"n0.png", "n1.png", "n2.png"}},
    };
    for (const auto& [arguments, result] : cases) {
        std::vector<std::string> line = arguments;
        line.insert(line.begin(), {"zdt", "--json"});
        const Result ran = runBare(line);
        EXPECT_EQ(ran.status, 0) << testing::PrintToString(arguments);
        EXPECT_EQ(json::parse(ran.out, nullptr, false), result) << testing::PrintToString(arguments);
    }
    EXPECT_EQ(runBare({"zdt", "expand", "system.time.min1/2"}).out, "0\n1\n2\n");
    EXPECT_EQ(runBare({"zdt", "fold", "1", "--height", "2000"}).status, 2);
    EXPECT_EQ(runBare({"zdt", "fold", "1"}).status, 2);
    std::string endless = "system.time.min2";
    for (int factor = 0; factor < 5; ++factor)
        endless += "+system.time.min2";
    for (const std::string& src : {endless, std::string(5000, 'a')}) {
        const Result refused = runBare({"zdt", "expand", src});
        EXPECT_EQ(refused.status, 1);
        EXPECT_NE(refused.err.find("stands for more than 10000 names"), std::string::npos);
    }
}

TEST_F(ZdtTest, FilesAreInspectedByTheirContent) {
    const std::string video = store.write("video.jpg", test::mp4());
    const json inspected = document({"inspect", video});
    EXPECT_EQ(inspected["type"], "mp4");
    EXPECT_EQ(inspected["fileSize"], fileSize(video));
    EXPECT_EQ(inspected.size(), 7U);
    EXPECT_EQ(document({"inspect", store.write("a.mp4", test::pngHeader(3, 4))}),
              json({{"type", "png"}, {"width", 3}, {"height", 4}}));
    EXPECT_EQ(run({"inspect", store.write("a.txt", test::jpegHeader(5, 6))}).out, "type: jpeg\nwidth: 5\nheight: 6\n");
    const std::string text = store.write("text.mp4", "no video");
    expectRefusal({"inspect", text}, text + ": it is no PNG, no JPEG and no MP4 video that can be read");
    expectRefusal({"inspect", store.root()}, store.root() + ": there is no such file, or it is no plain file");
}

} // namespace
} // namespace zdt
