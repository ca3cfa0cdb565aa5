#include "support/keyValueFile.h"

#include "support/files.h"

#include <cstdint>

namespace zdt {

namespace {

constexpr std::uint64_t maxKeyValueBytes = 1024 * 1024;

} // namespace

KeyValues parseKeyValues(std::string_view text) {
    KeyValues pairs;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        const std::size_t equals = line.find('=');
        if (line.starts_with('#') || equals == std::string_view::npos || equals + 1 == line.size())
            continue;
        pairs[std::string(line.substr(0, equals))] = line.substr(equals + 1);
    }
    return pairs;
}

KeyValues readKeyValueFile(const std::string& path) {
    return parseKeyValues(readFile(path, maxKeyValueBytes).value_or(std::string()));
}

bool writeKeyValueFile(const std::string& path, const KeyValues& pairs, Flush flush) {
    std::string text;
    for (const auto& [key, value] : pairs) {
        if ((key + value).find('\n') != std::string::npos)
            return false;
        text += key + "=" + value + "\n";
    }
    return writeFile(path, text, flush);
}

} // namespace zdt
