#include "input.h"
#include "support/keyValueFile.h"

namespace zdt {
namespace {

/// Carriage returns at a value's end are line ends to a reader, which drops one.
void dropLineEnds(KeyValues& pairs) {
    for (auto& [key, value] : pairs)
        value.erase(value.find_last_not_of('\r') + 1);
    std::erase_if(pairs, [](const auto& pair) { return pair.second.empty(); });
}

} // namespace
} // namespace zdt

/// What was read is the same when it was written and is read again.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zdt;
    static const fuzz::Scratch scratch;
    const std::string file = scratch.path("settings");
    KeyValues pairs = parseKeyValues(fuzz::textOf(data, size));
    dropLineEnds(pairs);
    ZDT_FUZZ_CHECK(writeKeyValueFile(file, pairs));
    ZDT_FUZZ_CHECK(readKeyValueFile(file) == pairs);
    return 0;
}
