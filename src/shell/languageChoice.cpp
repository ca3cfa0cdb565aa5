#include "shell/languageChoice.h"

#include "kit/skinFolder.h"
#include "support/atomicFile.h"
#include "support/files.h"

#include <algorithm>

namespace zdt {

namespace {

constexpr std::string_view section = "[Special_for_init_select_language]";
constexpr const char* configName = "config.ini";
/// Bytes; ours has a hundred.
constexpr std::uint64_t longestConfig = 64 * 1024;
constexpr std::string_view key = "kSpecial_for_init_select_language";

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Where a value stands in a text: from its first byte to behind its last.
struct Span {
    std::size_t from = 0;
    std::size_t to = 0;
};

/// The value of the setting within its section.
std::optional<Span> findValue(std::string_view config) {
    bool isInSection = false;
    for (std::size_t start = 0; start < config.size();) {
        const std::size_t end = std::min(config.find('\n', start), config.size());
        const std::string_view line = config.substr(start, end - start);
        const std::size_t equals = line.find('=');
        if (trimmed(line).starts_with('['))
            isInSection = trimmed(line) == section;
        else if (isInSection && equals != std::string_view::npos && trimmed(line.substr(0, equals)) == key)
            return Span{start + equals + 1, end};
        start = end + 1;
    }
    return std::nullopt;
}

} // namespace

bool isSimplifiedChinese(std::string_view locale) {
    const std::string_view name = locale.substr(0, locale.find_first_of(".@"));
    return name == "zh_CN" || name == "zh_SG" || name == "zh_Hans" || name.starts_with("zh_Hans_");
}

std::string languageSetting(std::string_view config) {
    const std::optional<Span> value = findValue(config);
    return value ? std::string(trimmed(config.substr(value->from, value->to - value->from))) : std::string();
}

std::optional<int> languageAtStart(std::string_view setting, bool systemIsChinese) {
    if (setting.empty() || setting == "0")
        return systemIsChinese ? chineseLanguage : englishLanguage;
    if (setting == "1")
        return chineseLanguage;
    return setting == "2" ? std::optional<int>(englishLanguage) : std::nullopt;
}

std::string withLanguage(std::string_view config, int language) {
    const std::string value = language == chineseLanguage ? "1" : "2";
    std::string text(config);
    if (const std::optional<Span> place = findValue(config)) {
        text.replace(place->from, place->to - place->from, value);
        return text;
    }
    if (!text.empty() && !text.ends_with('\n'))
        text += '\n';
    return text + std::string(section) + "\n" + std::string(key) + "=" + value + "\n";
}

std::string loadConfig() {
    return readFile(skinFile(configName), longestConfig).value_or(std::string());
}

bool writeConfig(int language) {
    const std::string text = loadConfig();
    const std::string changed = withLanguage(text, language);
    const std::string path = writableSkinFile(configName);
    return text == changed || (!path.empty() && writeFile(path, changed));
}

} // namespace zdt
