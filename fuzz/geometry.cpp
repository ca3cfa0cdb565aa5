#include "lockscreen/geometry.h"

#include "input.h"
#include "lockscreen/expression.h"

#include <array>

namespace zdt {
namespace {

/// Where an element may be put, and then lies.
constexpr std::array<int, 7> places{0, 910, 911, 1920, 2160, 100000, -100000};

/// Whether the tokens are the same without the blanks: two numbers side by side become one, as the format has it.
bool standsWithoutBlanks(const std::string& text) {
    std::string joined;
    for (const std::string& token : tokenise(text))
        joined += token;
    return tokenise(joined) == tokenise(text);
}

void check(const std::string& text, std::uint32_t height) {
    const std::string folded = foldGeometry(text, height);
    const std::optional<int> pixel = pixelOf(text, height);
    const bool isBeyond32Bits = folded.starts_with(screenHeightVariable) && !splitPosition(folded);
    if (standsWithoutBlanks(text) && !isBeyond32Bits) {
        ZDT_FUZZ_CHECK(foldGeometry(folded, height) == folded);
        ZDT_FUZZ_CHECK(pixelOf(folded, height) == pixel);
    }
    for (const int place : places)
        ZDT_FUZZ_CHECK(pixelOf(movedTo(text, place, height), height) == place);
    if (pixel && pixelOf(fixedPosition(text, height), height))
        ZDT_FUZZ_CHECK(pixelOf(fixedPosition(text, height), height) == pixel);
    if (pixel)
        ZDT_FUZZ_CHECK(pixelOf(anchoredPosition(text, height), height) == pixel);
}

} // namespace
} // namespace zdt

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(zdt::fuzz::textOf(data, size));
    zdt::check(text, 1920);
    zdt::check(text, 2160);
    return 0;
}
