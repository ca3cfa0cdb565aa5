#include "lockscreen/pictureNames.h"

#include "input.h"
#include "lockscreen/amazingElements.h"

namespace zdt {
namespace {

void check(const std::string& src) {
    const std::size_t counted = countNames(src);
    ZDT_FUZZ_CHECK(counted <= maxPictureNames + 1);
    if (const auto names = expandSource(src)) {
        ZDT_FUZZ_CHECK(names->size() <= maxPictureNames);
        ZDT_FUZZ_CHECK(names->size() <= counted);
    }
    std::string joined;
    for (const std::string& token : splitSource(src))
        joined += token + "+";
    ZDT_FUZZ_CHECK(joined == src + "+");
    const LockWallPaper wallpaper(AmazingChild("image", {{"src", src}}));
    ZDT_FUZZ_CHECK(wallpaper.files1920().size() <= maxPictureNames);
    ZDT_FUZZ_CHECK(wallpaper.files2160().size() <= maxPictureNames);
    static_cast<void>(wallpaper.resources());
}

} // namespace
} // namespace zdt

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zdt::check(std::string(zdt::fuzz::textOf(data, size)));
    return 0;
}
