#include "input.h"
#include "lockscreen/unlockConfigNode.h"

/// A file that can't be read gives no kind and is noted; one that can gives some kind.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zdt;
    static const fuzz::Scratch scratch;
    std::filesystem::create_directory(scratch.path("unlock"));
    const std::string file = scratch.write("unlock/theme.xml", fuzz::textOf(data, size));
    DamagedFile damaged;
    const std::string type = readUnlockType(scratch.path(), damaged);
    ZDT_FUZZ_CHECK(type.empty() == (damaged.path() == file));
    return 0;
}
