#include "assets/art/statusBar.h"
#include "assets/lock/lockScene.h"
#include "assets/templateTheme.h"
#include "lockscreen/amazingUnlockNode.h"
#include "lockscreen/expression.h"
#include "lockscreen/lockDesign.h"
#include "lockscreen/unlockConfigNode.h"
#include "model/fileResNode.h"
#include "support/files.h"

#include <gtest/gtest.h>

#include <QRect>

#include <algorithm>

namespace zdt::test {

namespace {

constexpr const char* heightVariable = "system.screen_height";
constexpr int lowHeight = screenHeight;
constexpr int highHeight = tallScreenHeight;

class LockScreens : public testing::TestWithParam<unsigned> {
protected:
    [[nodiscard]] std::string path(const std::string& below) const { return templatePath(GetParam()) + below; }
    [[nodiscard]] bool isGeneration5() const { return GetParam() == 0; }
    /// Those that the generation's design is laid out for: the tall one's cover is 1920 high.
    [[nodiscard]] std::vector<int> heights() const {
        return GetParam() == 2 ? std::vector{lowHeight, highHeight} : std::vector{lowHeight};
    }
    /// The layouts of both locks, without ".xml".
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

LockDesign read(const std::string& path, int height) {
    LayoutElements elements;
    EXPECT_TRUE(readLayout(path + ".xml", elements)) << path;
    return LockDesign(std::move(elements), static_cast<std::uint32_t>(height));
}

/// What the phone paints at a place.
struct Part {
    std::string src;
    std::string visible;
    QRect place;
};

/// The pictures and texts that a scene shows; of the music control, its ground and the buttons on it.
std::vector<Part> visibleParts(const LockDesign& design, const assets::LockScene& scene) {
    std::vector<Part> parts;
    const auto add = [&](const AmazingChild& element, const ElementPath& path, const std::string& visible) {
        const auto value = [&](std::string_view variable) { return assets::valueOf(scene, variable); };
        const std::optional<DesignRect> rect = design.rectOf(path);
        ASSERT_TRUE(rect) << element.src();
        if (evaluateCondition(visible, value).value())
            parts.push_back({element.src() + element.attribute("name"), visible,
                             QRect(rect->x, rect->y, rect->width, rect->height)});
    };
    for (std::size_t index = 0; index < design.elements().size(); ++index) {
        const AmazingChild& element = *design.elements()[index];
        if (!element.src().empty())
            add(element, {index}, element.attribute("visible"));
        for (std::size_t child = 0; &element == design.musicControl() && child < element.children().size(); ++child)
            add(*element.children()[child], {index, child}, std::string(layoutDefaults::musicVisible));
    }
    return parts;
}

void expectOnScreen(const std::vector<Part>& parts, int height) {
    const QRect screen(0, 0, 1080, height);
    const QRect belowStatusBar = screen.adjusted(0, assets::statusBarHeight, 0, 0);
    /// Where the phone's finger sensor lies.
    const QRect sensor(421, height - 942, 240, 360);
    EXPECT_GT(parts.size(), 10U);
    for (const Part& part : parts) {
        EXPECT_TRUE(belowStatusBar.contains(part.place)) << part.src;
        EXPECT_FALSE(sensor.intersects(part.place)) << part.src;
    }
}

/// A part may lie on another as its ground, if both show at the same times.
void expectApart(const std::vector<Part>& parts) {
    for (std::size_t upper = 0; upper < parts.size(); ++upper) {
        for (std::size_t lower = 0; lower < upper; ++lower) {
            const Part& one = parts[lower];
            const Part& other = parts[upper];
            const bool isGround = one.visible == other.visible && one.place.contains(other.place);
            EXPECT_TRUE(isGround || !one.place.intersects(other.place)) << one.src << " and " << other.src;
        }
    }
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

TEST_P(LockScreens, AreReadAsTheirParts) {
    for (const std::string& path : designs()) {
        SCOPED_TRACE(path);
        const LockDesign design = read(path, lowHeight);
        constexpr unsigned wholeClock = 31;
        EXPECT_EQ(design.clockBits(), wholeClock);
        EXPECT_EQ(design.unlockMode(), static_cast<int>(UnlockerKind::moving));
        for (const layoutDefaults::Text& text : layoutDefaults::texts)
            EXPECT_TRUE(design.text(std::string(text.src))) << text.src;
        const bool isDesigned = path == designs().front();
        for (std::size_t index = 0; index < chargeConditions.size(); ++index) {
            const Decoration* picture = design.chargePicture(index);
            EXPECT_EQ(picture ? picture->src() : "", isDesigned ? "charge_" + std::to_string(index) + ".png" : "");
        }
        if (!isDesigned)
            continue;
        EXPECT_TRUE(design.musicButton(MusicButton::show) && design.musicButton(MusicButton::hide));
        const AmazingChild* music = design.musicControl();
        ASSERT_TRUE(music);
        EXPECT_EQ(std::ranges::count(music->children(), "button", [](const auto& part) { return part->name(); }), 3);
    }
}

TEST_P(LockScreens, KeepTheirPartsApartAndOnTheScreen) {
    assets::LockScene busy;
    busy.amPm = "AM";
    busy.messages = busy.calls = 1;
    busy.showsMusic = true;
    assets::LockScene charging = busy;
    charging.isCharging = true;
    assets::LockScene quiet = charging;
    quiet.showsMusic = false;
    for (const std::string& path : designs()) {
        for (const int height : heights()) {
            for (const assets::LockScene& scene : {busy, charging, quiet}) {
                SCOPED_TRACE(path + " " + std::to_string(height));
                const std::vector<Part> parts = visibleParts(read(path, height), scene);
                expectOnScreen(parts, height);
                expectApart(parts);
            }
        }
    }
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
