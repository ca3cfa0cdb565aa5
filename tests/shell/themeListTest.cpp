#include "shell/themeList.h"

#include "common/fixtures.h"
#include "support/files.h"

#include <gtest/gtest.h>
#include <sys/time.h>

namespace zdt {
namespace {

using test::TemporaryFolder;
using Names = std::vector<std::string>;

void setChange(const std::string& path, long seconds) {
    const timeval times[2]{{seconds, 0}, {seconds, 0}};
    ASSERT_EQ(::utimes(path.c_str(), times), 0) << path;
}

TEST(ThemeList, TellsWhatEachThemeIsWithoutOpeningIt) {
    const TemporaryFolder folder;
    folder.write("res/A/description.xml", "<ZdTheme><title>Lagoon</title><title-cn>泻湖</title-cn>"
                                          "<version>8.0.1</version></ZdTheme>");
    folder.write("res/A/com.android.mms/theme.xml", "<resources/>");
    folder.write("res/A/preview/cover.jpg", "x");
    folder.write("res/B/description.xml", "no document");
    folder.write("config/B_config.txt", "type=2684354561\n");
    folder.write("res/C/icons/a.png", "x");
    folder.write("config/C_config.txt", "type=nine\n");
    for (const char* theme : {"A", "B", "C"}) {
        setChange(folder.path(std::string("res/") + theme), 1000);
        if (theme[0] != 'A')
            setChange(folder.path("config/" + std::string(theme) + "_config.txt"), theme[0] == 'B' ? 5000 : 3000);
    }
    setChange(folder.path("res/A/preview/cover.jpg"), 4000);
    setChange(folder.path("res/A/preview"), 2000);

    const std::vector<ThemeCard> cards = readThemeCards(folder.path(), ThemeOrder::byName);
    ASSERT_EQ(cards.size(), 3U);
    EXPECT_EQ(cards[0].title, "Lagoon");
    EXPECT_EQ(cards[0].chineseTitle, "泻湖");
    EXPECT_EQ(cards[0].generation, 1U);
    EXPECT_TRUE(cards[0].isBig);
    EXPECT_EQ(cards[0].cover, folder.path("res/A/preview/cover.jpg"));
    EXPECT_EQ(cards[0].changedAt, 4000);
    EXPECT_EQ(cards[1].generation, 0U);
    EXPECT_FALSE(cards[1].isBig);
    EXPECT_EQ(cards[1].cover, "");
    EXPECT_FALSE(cards[2].isReadable);
    EXPECT_EQ(cards[2].generation, unknownGeneration);

    Names order;
    for (const ThemeCard& card : readThemeCards(folder.path(), ThemeOrder::byChange))
        order.push_back(card.name);
    EXPECT_EQ(order, (Names{"B", "A", "C"}));
    for (const auto& [text, found] : std::vector<std::pair<std::string, bool>>{
             {"", true}, {"a", true}, {"LAG", true}, {"湖", true}, {"lake", false}})
        EXPECT_EQ(matchesSearch(cards[0], text), found) << text;
    EXPECT_TRUE(readThemeCards(folder.path("none/"), ThemeOrder::byChange).empty());
}

TEST(ThemeList, NameOfANewThemeIsChecked) {
    const Names taken{"Lagoon", "主题"};
    const struct {
        std::string name;
        NameProblem problem;
    } cases[] = {{"Dune", NameProblem::none},
                 {"沙丘", NameProblem::none},
                 {"a b", NameProblem::none},
                 {".hidden", NameProblem::none},
                 {"", NameProblem::empty},
                 {"  ", NameProblem::empty},
                 {"Lagoon", NameProblem::taken},
                 {"主题", NameProblem::taken},
                 {"lagoon", NameProblem::none},
                 {".", NameProblem::onlyDots},
                 {"....", NameProblem::onlyDots},
                 {"a/b", NameProblem::forbiddenSign},
                 {"a\\b", NameProblem::forbiddenSign},
                 {"a:b", NameProblem::forbiddenSign},
                 {"a\nb", NameProblem::forbiddenSign},
                 {"a\x01", NameProblem::forbiddenSign},
                 {"a\xff", NameProblem::forbiddenSign},
                 {std::string(201, 'a'), NameProblem::tooLong}};
    for (const auto& [name, problem] : cases)
        EXPECT_EQ(checkThemeName(name, taken), problem) << name;
}

TEST(ThemeList, TitleBeginsWithTheGeneration) {
    EXPECT_EQ(titlePrefix(0) + "A", "OVUI5.0:A");
    EXPECT_EQ(titlePrefix(2), "OVUI9.1:");
    EXPECT_EQ(titlePrefix(unknownGeneration), "");
}

} // namespace
} // namespace zdt
