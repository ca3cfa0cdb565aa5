#include "packaging/mp4.h"

#include "input.h"

#include <array>

namespace zdt {
namespace {

constexpr std::uint32_t untouched = 12345;

void check(const Mp4Info& info, std::size_t size) {
    ZDT_FUZZ_CHECK(info.brand.size() <= 4 && info.brand.starts_with("mp4"));
    ZDT_FUZZ_CHECK(info.fileSize == size);
    ZDT_FUZZ_CHECK(info.width % 2 == 0 && info.height % 2 == 0);
    ZDT_FUZZ_CHECK((info.width == 0) == (info.height == 0));
}

} // namespace
} // namespace zdt

/// Both forms of the inspection say the same, and a refused file writes nothing.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zdt;
    static const fuzz::Scratch scratch;
    const std::string file = scratch.write("video.mp4", fuzz::textOf(data, size));
    const std::optional<Mp4Info> info = readMp4Info(file);
    if (info)
        check(*info, size);
    std::array<char, 3> brand{'?', '?', '?'};
    std::array<std::uint32_t, 5> values{untouched, untouched, untouched, untouched, untouched};
    const bool isRead = InspectMp4(file.c_str(), brand.data(), brand.size(), &values[0], &values[1], &values[2],
                                   &values[3], &values[4]);
    ZDT_FUZZ_CHECK(isRead == info.has_value());
    ZDT_FUZZ_CHECK(isRead ? brand[2] == '\0' : brand[0] == '?' && values[0] == untouched && values[4] == untouched);
    return 0;
}
