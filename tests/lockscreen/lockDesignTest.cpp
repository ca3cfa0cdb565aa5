#include "lockscreen/lockDesign.h"

#include "common/fixtures.h"

#include <gtest/gtest.h>
#include <tinyxml2.h>

#include <random>

namespace zdt {
namespace {

using test::TemporaryFolder;
using Names = std::vector<std::string>;

const std::string hour1 = "<image src=\"'n_'+system.time.hour1+'.png'\"/>";
const std::string hour2 = "<image src=\"'n_'+system.time.hour2+'.png'\"/>";
const std::string min1 = "<image src=\"'n_'+system.time.min1+'.png'\"/>";
const std::string min2 = "<image src=\"'n_'+system.time.min2+'.png'\"/>";
const std::string colon = "<image src='colon.png'/>";
const std::string picture = "<image src='a.png'/>";
const std::string fullScreen = "x='0' y='0' w='1080' ";

LockDesign designOf(const std::string& elements, std::uint32_t height = 1920) {
    tinyxml2::XMLDocument document;
    EXPECT_EQ(document.Parse(("<layout>" + elements + "</layout>").c_str()), tinyxml2::XML_SUCCESS) << elements;
    LayoutElements list;
    for (const auto* each = document.RootElement()->FirstChildElement(); each; each = each->NextSiblingElement())
        list.push_back(std::make_unique<AmazingChild>(each));
    return {std::move(list), height};
}

/// A letter for each element: w(allpaper), d(ecoration), h H m M (digits), : (the clock's picture), t, u, c (music),
/// b(utton), p(lain).
std::string kinds(const LockDesign& design) {
    std::string letters;
    for (const auto& element : design.elements())
        letters += std::string("wdhHmM:tucbp").at(static_cast<std::size_t>(design.kindOf(*element)));
    return letters;
}

/// The design as a reader finds it in its own file.
LockDesign readBack(const LockDesign& design) {
    const TemporaryFolder folder;
    LayoutElements elements;
    EXPECT_TRUE(writeLayout(folder.path("a.xml"), design.elements()));
    EXPECT_TRUE(readLayout(folder.path("a.xml"), elements));
    return {std::move(elements), design.height()};
}

void expectSameWhenReadBack(const LockDesign& design) {
    const LockDesign again = readBack(design);
    EXPECT_EQ(kinds(again), kinds(design));
    EXPECT_EQ(again.clockBits(), design.clockBits());
    EXPECT_EQ(again.unlockMode(), design.unlockMode());
    for (std::size_t index = 0; index < chargeConditions.size(); ++index)
        EXPECT_EQ(again.chargePicture(index) != nullptr, design.chargePicture(index) != nullptr) << index;
}

TEST(LockDesign, ImagesAreToldApartByWhatStandsBeforeThem) {
    const struct {
        std::string elements;
        std::string kinds;
        unsigned clockBits;
    } cases[] = {
        {picture + colon, "dd", 0},
        {hour1 + hour2 + colon + min1 + min2 + picture, "hH:mMd", 31},
        {picture + hour1 + colon + picture + hour2, "dh:dH", 19},
        {hour1 + hour2 + min1 + min2 + colon, "hHmMd", 15},
        {hour1 + hour1 + colon, "hp:", 17},
        {hour1 + "<image src='a.jpg'/>" + colon, "hp:", 17},
        {"<image src='system.time.x.png'/><image src='system.time.y.png'/>", ":p", 16},
        {"<image src='system.time.x.jpg'/>", "p", 0},
        {"<image src=\"''+system.time.min1+'.png'\"/>", "p", 0},
        {"<image " + fullScreen + "h='1920' src=\"'b_'+system.time.min1+'.jpg'\"/>", "w", 0},
        {"<image " + fullScreen + "h='2160' src=\"'b_'+system.time.min1+'.jpg'\"/>", "w", 0},
        {"<image " + fullScreen + "h='system.screen_height' src=\"'n_'+system.time.min1+'.png'\"/>", "w", 0},
        {"<image x='0' y='0' w='540 * 2' h=' 1920 ' src=\"'b_'+system.time.min1+'.jpg'\"/>", "w", 0},
        {"<image " + fullScreen + "h='system.screen_height' src='a.png'/>", "d", 0},
        {"<image " + fullScreen + "h='1919' src=\"'n_'+system.time.min1+'.png'\"/>", "m", 4},
        {"<text src='system.date'/><unlocker/><MusicControl/><button/><button name='button_music_show'/><x/>", "tucpbp",
         0},
    };
    for (const auto& [elements, letters, bits] : cases) {
        const LockDesign design = designOf(elements);
        EXPECT_EQ(kinds(design), letters) << elements;
        EXPECT_EQ(design.clockBits(), bits) << elements;
    }
}

TEST(LockDesign, UnlockModeFollowsTheKindsOfUnlockers) {
    const auto unlocker = [](const std::string& endX) {
        return "<unlocker><StartPoint x='0' y='1'/><EndPoint x='" + endX + "' y='1'/><image src='a.png'/></unlocker>";
    };
    const struct {
        std::string elements;
        int mode;
        std::size_t parts;
    } cases[] = {{"", -1, 0},
                 {"<unlocker><StartPoint/></unlocker>", -1, 0},
                 {unlocker("0"), 1, 3},
                 {unlocker("5"), 2, 3},
                 {unlocker("5") + unlocker("0"), 3, 6}};
    for (const auto& [elements, mode, parts] : cases) {
        const LockDesign design = designOf(elements);
        EXPECT_EQ(design.unlockMode(), mode) << elements;
        EXPECT_EQ(design.unlockerParts().size(), parts) << elements;
    }
    const LockDesign both = designOf(unlocker("5") + unlocker("0"));
    EXPECT_EQ(both.unlockerParts()[1]->attribute("x"), "0") << "those of the first kind come first";
    EXPECT_TRUE(dynamic_cast<const Decoration*>(both.unlockerParts()[2]));
}

TEST(LockDesign, NewDesignHasTheTextsAndTheClockOfThePhone) {
    const LockDesign design = LockDesign::makeDefault(2160);
    EXPECT_EQ(kinds(design), "tttttthH:mMu");
    EXPECT_EQ(design.unlockMode(), 2);
    EXPECT_EQ(design.rectOf({2}), (DesignRect{45, 860, 1080, 80}));
    EXPECT_EQ(design.rectOf({8}), (DesignRect{210, 208, 30, 200}));
    expectSameWhenReadBack(design);
}

TEST(LockDesign, DecorationNeverBecomesThePictureOfTheClock) {
    LockDesign design = designOf(hour1 + hour2);
    std::size_t index = 99;
    ASSERT_EQ(design.addDecoration("b.png", {10, 20, 30, 40}, {{"name", "star"}}, index), 0);
    EXPECT_EQ(kinds(design), "dhH");
    EXPECT_EQ(index, 0U);
    expectSameWhenReadBack(design);
    design.addClock();
    EXPECT_EQ(kinds(design), "dhH:mM");
    ASSERT_EQ(design.moveElement(0, 2), 0);
    EXPECT_EQ(kinds(design), "dhH:mM") << "among the digits, below the clock";
    ASSERT_EQ(design.moveElement(0, 4), 0);
    EXPECT_EQ(kinds(design), "hH:mdM") << "behind the clock's own picture it is none";
    ASSERT_EQ(design.moveElement(4, 5), 0);
    EXPECT_EQ(design.decorations(), std::vector<std::size_t>{5});
    ASSERT_EQ(design.removeClockPicture(), 0);
    ASSERT_EQ(design.moveElement(2, 0), 0);
    EXPECT_EQ(design.clockBits(), 15U);
    ASSERT_EQ(design.removeClock(), 0);
    EXPECT_EQ(kinds(design), "d");
    EXPECT_EQ(design.removeClock(), -1);
    expectSameWhenReadBack(design);
}

TEST(LockDesign, DecorationOfAnyKindOfFileStaysOne) {
    LockDesign design = designOf(hour1 + hour2);
    std::size_t index = 99;
    ASSERT_EQ(design.addDecoration("a.jpg", {1, 1, 5, 5}, {}, index), 0);
    ASSERT_EQ(design.setChargePicture(3, "c.jpg", {}), 0);
    EXPECT_EQ(kinds(design), "ddhH");
    EXPECT_EQ(design.elements()[index]->src(), "a.jpg");
    EXPECT_TRUE(design.chargePicture(3));
    expectSameWhenReadBack(design);
}

TEST(LockDesign, ClockPictureStaysAmongItsDigits) {
    LockDesign design = designOf(picture + hour1 + hour2 + colon + min1 + min2);
    for (const std::size_t to : {0U, 5U, 1U, 5U}) {
        const auto& elements = design.elements();
        std::size_t from = 0;
        while (elements[from].get() != design.clockPicture())
            ++from;
        ASSERT_EQ(design.moveElement(from, to), 0);
        ASSERT_TRUE(design.clockPicture()) << kinds(design);
        expectSameWhenReadBack(design);
    }
    LockDesign twice = designOf(hour1 + hour1 + colon);
    EXPECT_EQ(twice.removeClock(), 0);
    EXPECT_EQ(kinds(twice), "") << "a second picture of a digit goes with the clock";
}

TEST(LockDesign, ChangeThatMakesAnElementAnotherKindIsRefused) {
    const std::string wallpaper = "<image " + fullScreen + "h='1920' src=\"'b_'+system.time.min1+'.jpg'\"/>";
    const std::string digit = "<image x='10' y='208' w='100' h='200' src=\"'n_'+system.time.hour1+'.png'\"/>";
    LockDesign design = designOf(wallpaper + picture + digit + "<button name='button_music_show' x='1'/>");
    const std::string before = kinds(design);
    EXPECT_EQ(design.setRect({0}, {0, 0, 1080, 1000}), designCode::notAllowed);
    EXPECT_EQ(design.setRect({2}, {0, 0, 1080, 1920}), designCode::notAllowed);
    EXPECT_EQ(design.setAttributes({0}, {{"src", "'c_'+system.time.min1+'.jpg'"}}), designCode::notAllowed);
    EXPECT_EQ(design.setAttributes({2}, {{"src", "a.png"}}), designCode::notAllowed);
    EXPECT_EQ(design.setAttributes({3}, {{"name", "other"}}), designCode::notAllowed);
    EXPECT_EQ(design.setAttributes({1}, {{"bad name", "1"}}), designCode::notAllowed);
    EXPECT_EQ(design.setAttributes({1}, {{"name", "\x01"}}), designCode::notAllowed);
    EXPECT_EQ(design.setAttributes({9}, {{"name", "a"}}), designCode::unknownId);
    EXPECT_EQ(design.setRect({1}, {0, 0, -1, 5}), designCode::notAllowed);
    EXPECT_EQ(design.removeElement(2), designCode::notAllowed);
    EXPECT_EQ(kinds(design), before);
    EXPECT_EQ(design.rectOf({0}), (DesignRect{0, 0, 1080, 1920}));
    EXPECT_EQ(design.setAttributes({3}, {{"x", ""}, {"y", "7"}}), 0);
    EXPECT_EQ(design.elements()[3]->attributes(),
              (AmazingChild::Attributes{{"name", "button_music_show"}, {"y", "7"}}));
    for (const char* file : {"", "a/b.png", "..", "'a'.png", "a+b.png", "system.time.png"})
        EXPECT_EQ(design.setDecorationFile(1, file), designCode::notAllowed) << file;
    EXPECT_EQ(design.setDecorationFile(2, "b.png"), designCode::unknownId);
    EXPECT_EQ(design.removeDecoration(2), designCode::missingElement);
    EXPECT_EQ(design.removeDecoration(9), designCode::unknownId);
}

TEST(LockDesign, PlaceKeepsHangingOnTheLowerEdge) {
    LockDesign design =
        designOf("<image src='a.png' x='1' y='system.screen_height-100+system.u_moveY' w='2' h='3'/>", 2160);
    EXPECT_EQ(design.rectOf({0}), (DesignRect{1, 2060, 2, 3}));
    ASSERT_EQ(design.setRect({0}, {5, 1960, 6, 7}), 0);
    EXPECT_EQ(design.elements()[0]->attribute("y"), "system.screen_height-200+system.u_moveY");
    design.setHeight(1920);
    EXPECT_EQ(design.rectOf({0}), (DesignRect{5, 1720, 6, 7}));
    EXPECT_EQ(designOf("<smarticon y='240'/>").rectOf({0}), (DesignRect{0, 240, 0, 0}));
    EXPECT_EQ(designOf("<text x='a'/>").rectOf({0}), std::nullopt);
    EXPECT_EQ(design.rectOf({1}), std::nullopt);
    EXPECT_EQ(design.rectOf({}), std::nullopt);
}

TEST(LockDesign, ChargePicturesAreFoundByIndexAndCondition) {
    LockDesign design = designOf("<image src='x.png' visible='" + std::string(chargeConditions[3]) + "'/>");
    ASSERT_TRUE(design.chargePicture(3));
    ASSERT_EQ(design.setChargePicture(0, "c0.png", {1, 2, 3, 4}), 0);
    ASSERT_EQ(design.setChargePicture(std::string(chargeConditions[9]), "c9.png", {1, 2, 3, 4}), 0);
    ASSERT_EQ(design.setChargePicture(0, "d0.png", {9, 9, 9, 9}), 0);
    EXPECT_EQ(design.chargePicture(0)->src(), "d0.png");
    EXPECT_EQ(design.chargePicture(0)->attribute("x"), "1") << "the place stays";
    EXPECT_EQ(design.setChargePicture("system.charge.show", "c.png", {}), designCode::unknownCondition);
    EXPECT_EQ(design.setChargePicture(10, "c.png", {}), designCode::unknownId);
    expectSameWhenReadBack(design);
    EXPECT_EQ(design.removeChargePicture(0), 0);
    EXPECT_EQ(design.removeChargePicture(0), designCode::missingElement);
    EXPECT_EQ(design.chargePicture(0), nullptr);
    EXPECT_DEATH(static_cast<void>(design.chargePicture(10)), "amazingUnlockNode");
}

TEST(LockDesign, PartsAreMadeOnceAndRemovedAsAWhole) {
    LockDesign design = designOf("<future/>");
    for (int time = 0; time < 2; ++time) {
        design.addMusic();
        EXPECT_EQ(design.addText("system.date"), 0);
        EXPECT_EQ(design.addText("system.weather"), designCode::unknownId);
        EXPECT_EQ(design.setUnlockMode(3), 0);
        design.addSmartIcon();
        EXPECT_EQ(kinds(design), "pbbctuup");
        EXPECT_EQ(design.unlockMode(), 3);
    }
    EXPECT_EQ(design.unlocker(UnlockerKind::inPlace)->attribute("name"), "unlocker");
    EXPECT_EQ(design.unlocker(UnlockerKind::moving)->attribute("name"), "unlocker2");
    EXPECT_EQ(design.musicControl()->children().size(), 4U);
    EXPECT_TRUE(design.musicButton(MusicButton::show) && design.musicButton(MusicButton::hide));
    expectSameWhenReadBack(design);

    EXPECT_EQ(design.setStartPoint(UnlockerKind::inPlace, {1, 2, 3, 4}), 0);
    EXPECT_EQ(design.setEndPoint(UnlockerKind::moving, {1, 2, 3, 4}), 0);
    EXPECT_EQ(design.setStartPoint(UnlockerKind::moving, {1, 2, 3, 4}), designCode::notAllowed);
    EXPECT_EQ(design.unlockMode(), 3);
    EXPECT_EQ(design.setUnlockMode(1), 0);
    EXPECT_EQ(design.unlockMode(), 1);
    EXPECT_EQ(design.setEndPoint(UnlockerKind::moving, {1, 2, 3, 4}), designCode::missingElement);
    EXPECT_EQ(design.setUnlockMode(4), designCode::unknownId);
    EXPECT_EQ(design.removeMusic(), 0);
    EXPECT_EQ(design.removeMusic(), designCode::missingElement);
    EXPECT_EQ(design.removeText("system.date"), 0);
    EXPECT_EQ(design.removeText("system.date"), designCode::missingElement);
    EXPECT_EQ(kinds(design), "pup");
}

TEST(LockDesign, MovingUnlockerCannotEndInItsStart) {
    LockDesign design = designOf("<unlocker><StartPoint x='0' y='0' w='5' h='5'/>"
                                 "<EndPoint x='9' y='0' w='5' h='5'/></unlocker>");
    EXPECT_EQ(design.setEndPoint(UnlockerKind::moving, {0, 0, 5, 5}), designCode::notAllowed);
    EXPECT_EQ(design.setRect({0, 1}, {0, 0, 5, 5}), designCode::notAllowed);
    EXPECT_EQ(design.setAttributes({0, 1}, {{"x", "0"}}), designCode::notAllowed);
    EXPECT_EQ(design.setChildren({0}, {AmazingChild("StartPoint")}), designCode::notAllowed);
    EXPECT_EQ(design.rectOf({0, 1}), (DesignRect{9, 0, 5, 5}));
    EXPECT_EQ(design.unlockMode(), 2);
}

TEST(LockDesign, WallpaperIsMadeAtTheBackAndChangesItsSource) {
    LockDesign design = designOf(picture, 2160);
    ASSERT_EQ(design.setWallpaperSource("'w_'+system.time.min2%3+'.jpg'"), 0);
    EXPECT_EQ(kinds(design), "wd");
    EXPECT_EQ(design.wallpaper()->attribute("h"), "2160");
    ASSERT_EQ(design.setWallpaperSource("'system.screen_height'+'w_'+system.time.min2%2+'.jpg'"), 0);
    EXPECT_EQ(design.wallpaper()->attribute("h"), "system.screen_height");
    EXPECT_EQ(design.wallpaper()->files2160(), (Names{"2160_w_0.jpg", "2160_w_1.jpg"}));
    EXPECT_EQ(design.setWallpaperSource("w.jpg"), designCode::notAllowed) << "it wouldn't be a wallpaper";
    EXPECT_EQ(kinds(design), "wd");
    expectSameWhenReadBack(design);
    EXPECT_EQ(design.removeElement(0), 0);
    EXPECT_EQ(design.wallpaper(), nullptr);
}

TEST(LockDesign, DecorationTakesAnimationsThatXmlCanHold) {
    LockDesign design = designOf(picture + hour1);
    AmazingChild frames("animation", {{"type", "frame"}});
    frames.addChild(std::make_unique<AmazingChild>("frame", AmazingChild::Attributes{{"src", "f.png"}}));
    EXPECT_EQ(design.setChildren({0}, {frames}), 0);
    EXPECT_EQ(readBack(design).find({0, 0, 0})->src(), "f.png");
    EXPECT_EQ(design.setChildren({0}, {AmazingChild("no name")}), designCode::notAllowed);
    EXPECT_EQ(design.setChildren({0}, {AmazingChild("frame", {{"src", "../f.png"}})}), designCode::notAllowed);
    EXPECT_EQ(design.setAttributes({0}, {{"src", "../a.png"}}), designCode::notAllowed);
    EXPECT_EQ(design.setChildren({5}, {frames}), designCode::unknownId);
    EXPECT_EQ(design.elements()[0]->children().size(), 1U);

    auto deep = std::make_unique<AmazingChild>("a");
    for (int level = 1; level < 96; ++level) {
        auto outer = std::make_unique<AmazingChild>("a");
        outer->addChild(std::move(deep));
        deep = std::move(outer);
    }
    EXPECT_EQ(design.setChildren({0}, {*deep}), 0);
    expectSameWhenReadBack(design);
    AmazingChild tooDeep("a");
    tooDeep.addChild(std::move(deep));
    EXPECT_EQ(design.setChildren({0}, {tooDeep}), designCode::notAllowed);
}

TEST(LockDesign, MoreThanIsReadIsNotWrittenOverALayout) {
    const TemporaryFolder folder;
    const std::string path = folder.path("a.xml");
    const std::string manyNames = "''+system.time.min2+system.time.min2+system.time.min2+system.time.min2";
    const struct {
        std::size_t frames;
        std::string src;
        bool isWritten;
    } cases[] = {{0, "", true},
                 {maxLayoutElements - 2, "", true},
                 {maxLayoutElements - 1, "", false},
                 {20, manyNames, true},
                 {21, manyNames, false}};
    for (const auto& [frames, src, isWritten] : cases) {
        LayoutElements elements;
        AmazingChild& animation = *elements.emplace_back(std::make_unique<AmazingChild>("animation"));
        for (std::size_t index = 0; index < frames; ++index)
            animation.addChild(std::make_unique<AmazingChild>("frame", AmazingChild::Attributes{{"src", src}}));
        EXPECT_EQ(writeLayout(path, elements), isWritten) << frames;
        EXPECT_TRUE(readLayout(path, elements)) << frames;
    }
}

TEST(LockDesign, AnyOrderOfOperationsLeavesADesignThatReadsTheSame) {
    std::mt19937 random(7); // NOLINT: the same run each time
    const auto below = [&](std::size_t limit) { return random() % std::max<std::size_t>(limit, 1); };
    for (int run = 0; run < 60; ++run) {
        LockDesign design = run % 2 == 0 ? LockDesign::makeDefault(1920) : designOf(hour1 + colon + picture + min1);
        for (int step = 0; step < 25; ++step) {
            std::size_t index = 0;
            const std::size_t count = design.elements().size();
            switch (below(10)) {
            case 0:
                static_cast<void>(design.addDecoration("p.png", {1, 1, 9, 9}, {}, index));
                break;
            case 1:
            case 2:
                static_cast<void>(design.moveElement(below(count), below(count)));
                break;
            case 3:
                static_cast<void>(design.removeElement(below(count)));
                break;
            case 4:
                design.addClock();
                break;
            case 5:
                static_cast<void>(below(4) == 0 ? design.removeClock() : design.removeClockPicture());
                break;
            case 6:
                static_cast<void>(design.setChargePicture(below(11), "c.png", {}));
                break;
            case 7:
                static_cast<void>(design.setWallpaperSource("'w_'+system.time.min2%3+'.jpg'"));
                break;
            case 8:
                static_cast<void>(design.setRect({below(count)}, {0, 0, 1080, 1920}));
                break;
            default:
                static_cast<void>(design.setUnlockMode(static_cast<int>(below(3)) + 1));
            }
            expectSameWhenReadBack(design);
            if (HasFailure())
                return;
        }
    }
}

} // namespace
} // namespace zdt
