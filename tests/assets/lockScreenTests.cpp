#include "assets/templateTheme.h"
#include "lockscreen/amazingElements.h"
#include "lockscreen/amazingUnlockNode.h"
#include "lockscreen/expression.h"
#include "lockscreen/layoutDocument.h"
#include "lockscreen/unlockConfigNode.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zdt::test {

namespace {

constexpr const char* heightVariable = "system.screen_height";

class LockScreens : public testing::TestWithParam<unsigned> {
protected:
    [[nodiscard]] std::string path(const std::string& below) const { return templatePath(GetParam()) + below; }
    [[nodiscard]] bool isGeneration5() const { return GetParam() == 0; }
    /// The layouts of a folder, without ".xml".
    [[nodiscard]] std::vector<std::string> designs() const {
        return {path("unlock_amazing/layout-hdpi/layout1"), path("unlock_slide/layout-hdpi/layout_slide")};
    }
};

void collectPictures(const AmazingChild& element, std::set<std::string>& names) {
    const auto own = element.resources();
    ASSERT_TRUE(own) << element.src();
    names.insert(own->begin(), own->end());
    for (const auto& child : element.children())
        collectPictures(*child, names);
}

std::vector<std::string> heightsOf(const AmazingChild& element) {
    std::vector<std::string> heights{element.attribute("y")};
    for (const auto& child : element.children()) {
        const std::vector<std::string> below = heightsOf(*child);
        heights.insert(heights.end(), below.begin(), below.end());
    }
    return heights;
}

std::int32_t valueAt(std::string place, int height) {
    if (const std::size_t start = place.find(heightVariable); start != std::string::npos)
        place.replace(start, std::string_view(heightVariable).size(), std::to_string(height));
    return calculate(place);
}

} // namespace

TEST_P(LockScreens, OfANewThemeAreTheDesignedOneWithAllItsFiles) {
    const TemplateTheme theme(GetParam());
    const auto tree = makeTree(themeKinds(GetParam()).front(), theme.path());
    EXPECT_EQ(tree->findByPath(KeyPath{"unlock"})->value(), unlockType::amazing);
    auto* node = dynamic_cast<AmazingUnlockNode*>(tree->findByPath(KeyPath{"unlock", "amazing"}));
    ASSERT_TRUE(node);
    EXPECT_TRUE(node->isReadable());
    EXPECT_TRUE(node->missingFiles().empty());
    EXPECT_EQ(node->validate({}), 0);
}

TEST_P(LockScreens, HaveOneKindForAnySetOfFoldersThatAThemeMerges) {
    EXPECT_TRUE(pathExists(path("unlock_amazing/theme.xml")));
    EXPECT_FALSE(pathExists(path("unlock_slide/theme.xml")));
    EXPECT_TRUE(readFile(path("unlock_magazine/theme.xml")).find("\"magazine\"") != std::string::npos);
    const std::set<std::string> slide = filesBelow(path("unlock_slide/"));
    for (const std::string& file : filesBelow(path("unlock_amazing/")))
        EXPECT_FALSE(slide.contains(file)) << file;
}

TEST_P(LockScreens, NameExactlyThePicturesBesideThem) {
    for (const std::string& design : designs()) {
        LayoutElements elements;
        ASSERT_TRUE(readLayout(design + ".xml", elements)) << design;
        std::set<std::string> named;
        for (const auto& element : elements)
            collectPictures(*element, named);
        EXPECT_EQ(named, filesBelow(parentPath(parentPath(design)) + "/drawable-hdpi/")) << design;
    }
}

TEST_P(LockScreens, UnlockByAMoveToAnotherPlace) {
    for (const std::string& design : designs()) {
        LayoutElements elements;
        ASSERT_TRUE(readLayout(design + ".xml", elements)) << design;
        const auto isUnlocker = [](const auto& element) { return element->name() == "unlocker"; };
        ASSERT_EQ(std::count_if(elements.begin(), elements.end(), isUnlocker), 1) << design;
        const auto found = std::find_if(elements.begin(), elements.end(), isUnlocker);
        const UnlockerData unlocker(std::move(**found));
        EXPECT_EQ(unlocker.unlockerKind(), 2) << design;
        const std::int32_t start = valueAt(unlocker.startPoints().front()->attribute("y"), 1920);
        const std::int32_t end = valueAt(unlocker.endPoints().front()->attribute("y"), 1920);
        EXPECT_EQ(end < start, design.ends_with("layout1")) << "the designed lock alone is pushed upwards";
    }
}

TEST_P(LockScreens, ShowAClockThatIsToldFromDecorations) {
    LayoutElements elements;
    ASSERT_TRUE(readLayout(designs().front() + ".xml", elements));
    std::vector<std::string> sources;
    for (const auto& element : elements) {
        if (element->name() == "image" && element->attribute("y") == "208")
            sources.push_back(element->src());
    }
    const std::vector<std::string> clock{"'number_'+system.time.hour1+'.png'", "'number_'+system.time.hour2+'.png'",
                                         "colon.png", "'number_'+system.time.min1+'.png'",
                                         "'number_'+system.time.min2+'.png'"};
    EXPECT_EQ(sources, clock);
    EXPECT_EQ(std::count_if(elements.begin(), elements.end(), [](const auto& each) { return each->name() == "text"; }),
              6);
}

TEST_P(LockScreens, HaveAFormForAFixedHeightInGeneration5Alone) {
    for (const std::string& design : designs()) {
        EXPECT_EQ(pathExists(design + "_full.xml"), isGeneration5());
        EXPECT_EQ(readFile(design + ".xml").find(heightVariable) == std::string::npos, isGeneration5()) << design;
        if (!isGeneration5())
            continue;
        LayoutElements full;
        LayoutElements fixed;
        ASSERT_TRUE(readLayout(design + "_full.xml", full) && readLayout(design + ".xml", fixed));
        ASSERT_EQ(full.size(), fixed.size());
        for (std::size_t index = 0; index < full.size(); ++index) {
            const std::vector<std::string> places = heightsOf(*full[index]);
            const std::vector<std::string> numbers = heightsOf(*fixed[index]);
            ASSERT_EQ(places.size(), numbers.size());
            for (std::size_t part = 0; part < places.size(); ++part) {
                EXPECT_EQ(valueAt(places[part], 1920), valueAt(numbers[part], 0)) << places[part];
                EXPECT_EQ(places[part].find("_move") == std::string::npos,
                          numbers[part].find("_move") == std::string::npos)
                    << places[part];
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Generations, LockScreens, testing::Values(0U, 1U, 2U));

} // namespace zdt::test
