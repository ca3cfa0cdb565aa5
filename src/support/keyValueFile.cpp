#include "support/keyValueFile.h"

#include "support/files.h"

#include <cstdint>
#include <utility>

namespace zdt {

namespace {

constexpr std::uint64_t maxKeyValueBytes = 1024 * 1024;
constexpr std::size_t maxPairs = 10000;

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

std::optional<KeyValues> loadKeyValueFile(const std::string& path) {
    const std::optional<std::string> text = readFile(path, maxKeyValueBytes);
    if (!text)
        return std::nullopt;
    KeyValues pairs = parseKeyValues(*text);
    return pairs.size() <= maxPairs ? std::optional<KeyValues>(std::move(pairs)) : std::nullopt;
}

KeyValues readKeyValueFile(const std::string& path) {
    return loadKeyValueFile(path).value_or(KeyValues());
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
