#include "input.h"
#include "lockscreen/layoutDocument.h"
#include "lockscreen/lockDesign.h"

#include <algorithm>
#include <array>

/// The input is a layout document, and behind a NUL the steps: a byte for the screen's height, and then operations.
namespace zdt {
namespace {

constexpr std::size_t maxSteps = 24;
constexpr std::size_t maxElements = 60;

/// What a design is, for a reader.
struct Summary {
    std::vector<ElementKind> kinds;
    unsigned clockBits = 0;
    int unlockMode = 0;
    std::array<bool, chargeConditions.size()> charge{};

    explicit Summary(const LockDesign& design)
        : clockBits(design.clockBits())
        , unlockMode(design.unlockMode()) {
        for (const auto& element : design.elements())
            kinds.push_back(design.kindOf(*element));
        for (std::size_t index = 0; index < charge.size(); ++index)
            charge[index] = design.chargePicture(index) != nullptr;
    }
    friend bool operator==(const Summary&, const Summary&) = default;
};

/// What stands in the file is what was written, and a reader tells the same.
void checkReadBack(const LockDesign& design, const std::string& file) {
    ZDT_FUZZ_CHECK(writeLayout(file, design.elements()));
    LayoutElements elements;
    ZDT_FUZZ_CHECK(readLayout(file, elements));
    const LockDesign again(std::move(elements), design.height());
    ZDT_FUZZ_CHECK(Summary(again) == Summary(design));
}

/// What a value may be that an author gives: one that is apt to matter, or any bytes.
std::string text(fuzz::Bytes& bytes) {
    constexpr std::array<const char*, 14> likely{"",
                                                 "a.png",
                                                 "b.jpg",
                                                 "'n_'+system.time.hour1+'.png'",
                                                 "'n_'+system.time.min2+'.png'",
                                                 "'w_'+system.time.min2%3+'.jpg'",
                                                 "'system.screen_height'+'w_'+system.time.min1+'.jpg'",
                                                 "0",
                                                 "1080",
                                                 "system.screen_height",
                                                 "system.screen_height-100+system.u_moveY",
                                                 "system.charge.level ge 0 and system.charge.level le 10 and "
                                                 "system.charge.show",
                                                 "button_music_show",
                                                 "system.date"};
    constexpr std::size_t longest = 20;
    const std::size_t choice = bytes.below(likely.size() + longest);
    return choice < likely.size() ? likely[choice] : std::string(bytes.take(choice - likely.size()));
}

DesignRect rect(fuzz::Bytes& bytes) {
    constexpr std::array<DesignRect, 5> likely{
        {{0, 0, 0, 0}, {0, 0, 1080, 1920}, {0, 0, 1080, 2160}, {10, 2000, 30, 40}, {-1, -1, 5, 5}}};
    return likely[bytes.below(likely.size())];
}

AmazingChild::Attributes attributes(fuzz::Bytes& bytes) {
    constexpr std::array<const char*, 8> keys{"src", "name", "visible", "x", "y", "w", "h", "a b"};
    const std::string key = keys[bytes.below(keys.size())];
    return {{key, text(bytes)}};
}

/// A place in the list of elements, at times one behind its end.
std::size_t place(fuzz::Bytes& bytes, const LockDesign& design) {
    return bytes.below(design.elements().size() + 1);
}

ElementPath path(fuzz::Bytes& bytes, const LockDesign& design) {
    ElementPath path{place(bytes, design)};
    for (std::size_t depth = bytes.below(4); depth > 1; --depth)
        path.push_back(bytes.below(4));
    return path;
}

UnlockerKind unlockerKind(fuzz::Bytes& bytes) {
    return bytes.below(2) == 0 ? UnlockerKind::inPlace : UnlockerKind::moving;
}

int changeElement(LockDesign& design, fuzz::Bytes& bytes) {
    switch (bytes.below(6)) {
    case 0:
        return design.setRect(path(bytes, design), rect(bytes));
    case 1: {
        const ElementPath where = path(bytes, design);
        return design.setAttributes(where, attributes(bytes));
    }
    case 2:
        return design.setChildren(path(bytes, design), {AmazingChild(text(bytes), attributes(bytes))});
    case 3: {
        const std::size_t from = place(bytes, design);
        return design.moveElement(from, place(bytes, design));
    }
    case 4:
        return design.removeElement(place(bytes, design));
    default: {
        const std::size_t index = place(bytes, design);
        return bytes.below(2) == 0 ? design.setDecorationFile(index, text(bytes)) : design.removeDecoration(index);
    }
    }
}

int addPart(LockDesign& design, fuzz::Bytes& bytes) {
    std::size_t index = 0;
    switch (bytes.below(8)) {
    case 0: {
        const std::string file = text(bytes);
        return design.addDecoration(file, rect(bytes), attributes(bytes), index);
    }
    case 1:
        return design.setWallpaperSource(text(bytes));
    case 2:
        design.addClock();
        return 0;
    case 3:
        return design.setChargePicture(bytes.below(11), text(bytes), {});
    case 4:
        design.addMusic();
        return 0;
    case 5:
        return design.addText(text(bytes));
    case 6:
        return design.setUnlockMode(static_cast<int>(bytes.below(5)));
    default:
        design.addSmartIcon();
        return 0;
    }
}

int removePart(LockDesign& design, fuzz::Bytes& bytes) {
    switch (bytes.below(8)) {
    case 0:
        return design.removeClock();
    case 1:
        return design.removeClockPicture();
    case 2:
        return design.removeChargePicture(bytes.below(11));
    case 3:
        return design.removeMusic();
    case 4:
        return design.removeText(text(bytes));
    case 5:
        return design.removeUnlocker(unlockerKind(bytes));
    case 6:
        return design.setStartPoint(unlockerKind(bytes), rect(bytes));
    default:
        return design.setEndPoint(unlockerKind(bytes), rect(bytes));
    }
}

int step(LockDesign& design, fuzz::Bytes& bytes) {
    const std::size_t choice = bytes.below(3);
    if (choice == 0)
        return changeElement(design, bytes);
    return choice == 1 ? addPart(design, bytes) : removePart(design, bytes);
}

/// A refused operation leaves what a reader would tell.
void takeSteps(LockDesign& design, fuzz::Bytes& bytes) {
    for (std::size_t count = 0; count < maxSteps && !bytes.isEmpty(); ++count) {
        if (design.elements().size() > maxElements)
            return;
        const Summary before(design);
        if (step(design, bytes) != 0)
            ZDT_FUZZ_CHECK(Summary(design) == before);
    }
}

void look(const LockDesign& design) {
    for (std::size_t index = 0; index < design.elements().size(); ++index) {
        static_cast<void>(design.rectOf({index}));
        static_cast<void>(design.rectOf({index, 0}));
        static_cast<void>(design.elements()[index]->resources());
    }
    static_cast<void>(design.unlockerParts());
    const AmazingChild* const picture = design.clockPicture();
    const auto isPicture = [&](const auto& element) { return element.get() == picture; };
    ZDT_FUZZ_CHECK(!picture || std::any_of(design.elements().begin(), design.elements().end(), isPicture));
}

void check(std::string_view document, fuzz::Bytes bytes) {
    static const fuzz::Scratch scratch;
    LayoutElements elements;
    if (!readLayout(scratch.write("layout.xml", document), elements))
        return;
    LockDesign design(std::move(elements), bytes.below(2) == 0 ? 1920 : 2160);
    const std::string written = scratch.path("written.xml");
    checkReadBack(design, written);
    look(design);
    if (bytes.isEmpty())
        return;
    takeSteps(design, bytes);
    checkReadBack(design, written);
    look(design);
    const FixedHeightForm form(design.elements(), design.height());
    ZDT_FUZZ_CHECK(writeLayout(written, design.elements()));
}

} // namespace
} // namespace zdt

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto [document, steps] = zdt::fuzz::cutAt(zdt::fuzz::textOf(data, size), '\0');
    zdt::check(document, zdt::fuzz::Bytes(steps));
    return 0;
}
