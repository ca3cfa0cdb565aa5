#include "kit/localisation.h"

#include "kit/skinFolder.h"
#include "support/files.h"

#include <cstdint>
#include <optional>
#include <string>

namespace zdt {

namespace {

constexpr std::uint64_t maxTextBytes = 1024 * 1024;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
/// Blanks of ASCII alone: the wide blank of Chinese may be part of a text.
constexpr std::string_view blanks = " \t\v\f\r";

struct Tables {
    int language = chineseLanguage;
    TextTable texts;
    KeyTable keys;
};

Tables& tables() {
    static Tables theTables;
    return theTables;
}

std::string_view trimmed(std::string_view line) {
    const std::size_t begin = line.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return line.substr(begin, line.find_last_not_of(blanks) - begin + 1);
}

bool isSection(std::string_view line) {
    const std::size_t open = line.find('[');
    return open != std::string_view::npos && line.find(']', open) != std::string_view::npos;
}

QString decoded(std::string_view bytes) {
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// Hands each pair of the text's lines to `take`, but for the lines that are comments.
template <typename IsComment, typename Take>
void forEachPair(std::string_view text, IsComment isComment, Take take) {
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        const std::size_t equals = line.find('=');
        if (!isComment(line) && !isSection(line) && equals != std::string_view::npos)
            take(decoded(line.substr(0, equals)), decoded(line.substr(equals + 1)));
    }
}

std::string skinText(std::string_view name) {
    return readFile(skinFile(name), maxTextBytes).value_or(std::string());
}

QString filled(QString text, QStringView mark, const QString& value) {
    const qsizetype place = text.indexOf(mark);
    return place < 0 ? text + value : text.replace(place, mark.size(), value);
}

} // namespace

TextTable parseTexts(std::string_view text) {
    TextTable texts;
    const auto isComment = [](std::string_view line) { return line.starts_with('#'); };
    forEachPair(text, isComment, [&texts](const QString& key, const QString& value) {
        if (!texts.contains(key))
            texts.insert(key, value);
    });
    return texts;
}

KeyTable parseKeys(std::string_view text) {
    KeyTable keys;
    const auto isComment = [](std::string_view line) { return line.find('#') != std::string_view::npos; };
    forEachPair(text, isComment, [&keys](const QString& name, const QString& key) { keys[name].append(key); });
    return keys;
}

void LoadLanguage() {
    tables().texts = parseTexts(skinText(GetLanguage() == chineseLanguage ? "Chinese.ini" : "English.ini"));
}

void LoadKeys() {
    tables().keys = parseKeys(skinText("Key.ini"));
}

int GetLanguage() {
    return tables().language;
}

void SetLanguage(int index) {
    if (index != chineseLanguage && index != englishLanguage)
        return;
    tables().language = index;
    LoadLanguage();
}

QString Text(const QString& key) {
    return tables().texts.value(key);
}

QString KeyedText(const QString& name) {
    for (const QString& key : tables().keys.value(name)) {
        const auto text = tables().texts.constFind(key);
        if (text != tables().texts.constEnd())
            return *text;
    }
    return {};
}

QString FirstKey(const QString& name) {
    return tables().keys.value(name).value(0);
}

QString TextWith(const QString& key, int number) {
    return filled(Text(key), u"%d", QString::number(number));
}

QString TextWith(const QString& key, const QString& word) {
    return filled(Text(key), u"%s", word);
}

} // namespace zdt
