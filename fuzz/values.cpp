#include "input.h"
#include "model/configResNode.h"

#include <utility>
#include <vector>

namespace zdt {
namespace {

constexpr const char* folder = "com.android.mms/";
using Values = std::vector<std::pair<std::string, std::string>>;

ConfigBlock block() {
    return {{{typeMask::everywhere, {"colour", "half", "text", "flag"}}},
            {{"colour", "#111111"}, {"half", "#80222222"}, {"flag", "false"}},
            "color",
            {{"flag", "bool"}, {"text", "string"}},
            folder};
}

/// A theme of generation 8 with one block, as its file says.
class Theme {
public:
    explicit Theme(const std::string& directory) {
        _root.setPath(directory);
        _root.setTypeMask(typeMask::generation8 | typeMask::bigTheme | typeMask::chinese);
        _block = &_root.emplaceChild<ConfigResNode>(typeMask::everywhere, "text", block());
    }

    [[nodiscard]] ConfigResNode& values() const { return *_block; }
    [[nodiscard]] Values list() const {
        Values values;
        for (const ResNode* child = _block->firstChild(); child; child = child->next())
            values.emplace_back(child->name(), child->value());
        return values;
    }

private:
    ResNode _root;
    ConfigResNode* _block = nullptr;
};

} // namespace
} // namespace zdt

/// Whatever the file says, what was taken from it is the same when it was written and is read again.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zdt;
    static const fuzz::Scratch scratch;
    std::filesystem::create_directory(scratch.path(folder));
    scratch.write(std::string(folder) + "theme.xml", fuzz::textOf(data, size));
    const Theme theme(scratch.path());
    if (theme.values().isDamaged())
        return 0;
    ZDT_FUZZ_CHECK(theme.values().save(false));
    const Theme again(scratch.path());
    ZDT_FUZZ_CHECK(!again.values().isDamaged());
    ZDT_FUZZ_CHECK(again.list() == theme.list());
    return 0;
}
