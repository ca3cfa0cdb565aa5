#include "modules/keyBlock.h"

namespace zdt {

namespace {

constexpr const char* defaultKeyType = "color";

} // namespace

ConfigKeys makeKeys(std::span<const tables::KeyRow> rows, TypeMask kinds) {
    ConfigBlock block;
    block.defaultType = defaultKeyType;
    for (const tables::KeyRow& row : rows) {
        const TypeMask mask = kinds | row.generations;
        if (block.keyLists.empty() || block.keyLists.back().first != mask)
            block.keyLists.push_back({mask, {}});
        const std::string& key = block.keyLists.back().second.emplace_back(row.name);
        block.defaults[key] = row.fallback;
        if (row.type != defaultKeyType)
            block.types[key] = row.type;
    }
    return resolveKeys(block);
}

} // namespace zdt
