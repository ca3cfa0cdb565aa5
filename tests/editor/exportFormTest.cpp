#include "editor/exportForm.h"

#include <gtest/gtest.h>

namespace zdt {
namespace {

using Names = std::vector<std::string>;

ExportForm goodForm() {
    return {"Lagoon", "泻湖", "dev", "des", 2, "100", ""};
}

TEST(ExportForm, TellsTheFirstThingThatIsWrong) {
    const auto with = [](auto change) {
        ExportForm form = goodForm();
        change(form);
        return form;
    };
    const struct {
        ExportForm form;
        std::string_view message;
    } cases[] = {
        {goodForm(), ""},
        {with([](ExportForm& form) { form.themeVersion = "1000"; }), ""},
        {with([](ExportForm& form) { form.themeVersion = "1001"; }), "kWarn_theme_version"},
        {with([](ExportForm& form) { form.themeVersion = "99", form.englishName = ""; }), "kWarn_theme_version"},
        {with([](ExportForm& form) { form.themeVersion = "1e3"; }), "kWarn_theme_version"},
        {with([](ExportForm& form) { form.generation = 1, form.themeVersion = "7"; }), ""},
        {with([](ExportForm& form) { form.englishName = ""; }), "kWarn_theme_name_canot_empty_EN"},
        {with([](ExportForm& form) { form.englishName = ".a" + std::string(40, 'a'); }), "kWarn_newtheme_special_char"},
        {with([](ExportForm& form) { form.englishName = "a."; }), "kWarn_newtheme_special_char"},
        {with([](ExportForm& form) { form.englishName = "a.b c-d_e;f"; }), ""},
        {with([](ExportForm& form) { form.englishName = "a:b"; }), "kWarn_newtheme_special_sign"},
        {with([](ExportForm& form) { form.englishName = "a/b"; }), "kWarn_newtheme_special_sign"},
        {with([](ExportForm& form) { form.englishName = "é"; }), "kWarn_newtheme_special_sign"},
        {with([](ExportForm& form) { form.englishName = "a主"; }), "kWarn_newtheme_special_sign"},
        {with([](ExportForm& form) { form.englishName = std::string(32, 'a'); }), ""},
        {with([](ExportForm& form) { form.englishName = std::string(33, 'a'); }), "kWarn_theme_name_limit"},
        {with([](ExportForm& form) { form.chineseName = "", form.developer = ""; }), "kWarn_theme_name_canot_empty_CH"},
        {with([](ExportForm& form) { form.developer = "", form.designer = ""; }), "kWarn_theme_name_canot_empty_DEV"},
        {with([](ExportForm& form) { form.designer = "", form.chineseName = "a."; }),
         "kWarn_theme_name_canot_empty_DES"},
        {with([](ExportForm& form) { form.chineseName = "主.题"; }), "kWarn_newtheme_special_ch_sign"},
        {with([](ExportForm& form) { form.chineseName = "主：题"; }), "kWarn_newtheme_special_ch_sign"},
        {with([](ExportForm& form) { form.chineseName = "主:题"; }), ""},
        {with([](ExportForm& form) { form.chineseName = "一二三四五六七八九十一二三四五六"; }), ""},
        {with([](ExportForm& form) { form.chineseName = "一二三四五六七八九十一二三四五六七"; }),
         "kWarn_theme_name_cn_limit"},
        {with([](ExportForm& form) { form.generation.reset(); }), "kWarn_theme_config_not_complite"},
        {with([](ExportForm& form) { form.generation = 0, form.themeVersion = ""; }),
         "kWarn_theme_config_not_complite"},
    };
    for (const auto& [form, message] : cases)
        EXPECT_EQ(checkExportForm(form), message)
            << form.englishName << ' ' << form.chineseName << ' ' << form.themeVersion;
}

TEST(ExportForm, VersionFollowsTheTarget) {
    const struct {
        const char* text;
        unsigned generation;
        const char* whenLeft;
        const char* whenChosen;
    } cases[] = {{"100", 2, "100", "100"}, {"999", 2, "999", "999"},  {"1000", 2, "100", "1000"},
                 {"99", 2, "100", "100"},  {"1001", 2, "100", "100"}, {"", 2, "100", "100"},
                 {"7", 0, "7", "7"},       {"", 1, "", "1"},          {"5000", 1, "5000", "5000"}};
    for (const auto& [text, generation, whenLeft, whenChosen] : cases) {
        EXPECT_EQ(versionWhenLeft(text, generation), whenLeft) << text;
        EXPECT_EQ(versionForTarget(text, generation), whenChosen) << text;
    }
    EXPECT_EQ(fullVersion(goodForm()), "9.0.100");
    EXPECT_EQ(themeVersionOf("9.0.100"), "100");
    EXPECT_EQ(themeVersionOf("9.0"), "");
    EXPECT_EQ(themeVersionOf(""), "");
}

TEST(ExportForm, PreviewsAreShownByTheirGroups) {
    const Names names{"cover.jpg",      "preview_unlock_0.jpg",   "preview_contacts_0.jpg", "preview_contacts_1.jpg",
                      "icon_small.jpg", "preview_contacts_2.jpg", "preview_unlock_1.jpg",   "preview_mms_0.jpg"};
    EXPECT_EQ(previewsOf(previewGroups()[0], names, 0), (Names{"preview_unlock_0.jpg", "preview_unlock_1.jpg"}));
    EXPECT_EQ(previewsOf(previewGroups()[3], names, 1), (Names{"preview_contacts_0.jpg"}));
    EXPECT_EQ(previewsOf(previewGroups()[3], names, 2).size(), 3U);
    EXPECT_EQ(previewsOfNoGroup(names), (Names{"cover.jpg", "icon_small.jpg"}));
}

} // namespace
} // namespace zdt
