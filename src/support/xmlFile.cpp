#include "support/xmlFile.h"

#include "support/atomicFile.h"
#include "support/files.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace zdt {

namespace {

constexpr std::uint64_t maxXmlBytes = 16 * 1024 * 1024;
constexpr int maxAttributes = 1000;
constexpr const char* declaration = R"(xml version="1.0" encoding="UTF-8")";

/// The place behind the next `end`; the text's size without one.
std::size_t behind(std::string_view text, std::string_view end, std::size_t from) {
    const std::size_t place = text.find(end, from);
    return place == std::string_view::npos ? text.size() : place + end.size();
}

/// The place of a tag's end. Counts the quoted values on the way, of which there are as many as attributes.
std::size_t endOfTag(std::string_view text, std::size_t place, int& values) {
    while (place < text.size() && text[place] != '>') {
        const char quote = text[place++];
        if (quote != '"' && quote != '\'')
            continue;
        ++values;
        place = behind(text, {&quote, 1}, place);
    }
    return place;
}

/// Whether no element has more attributes than `maxAttributes`: the parser compares each with all before it, and a file
/// of many would take hours. The text is walked as the parser does, so that no value or comment can hide a tag.
bool hasFewAttributes(std::string_view text) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 4> notTags{
        {{"!--", "-->"}, {"![CDATA[", "]]>"}, {"!", ">"}, {"?", "?>"}}};
    for (std::size_t place = behind(text, "<", 0); place < text.size(); place = behind(text, "<", place)) {
        const std::string_view rest = text.substr(place);
        const auto* const other = std::find_if(notTags.begin(), notTags.end(),
                                               [&](const auto& each) { return rest.starts_with(each.first); });
        int values = 0;
        place = other != notTags.end() ? behind(text, other->second, place + other->first.size())
                                       : endOfTag(text, place, values);
        if (values > maxAttributes)
            return false;
    }
    return true;
}

bool isForbidden(std::uint32_t code) {
    return code < ' ' && code != '\t' && code != '\n' && code != '\r';
}

/// Whether what follows a "&#" is the rest of a reference to a character that XML may hold, such as "38;" or "x26;".
/// The parser makes something of any other, too.
bool isSoundReference(std::string_view rest) {
    const bool isHex = rest.starts_with('x');
    rest.remove_prefix(isHex ? 1 : 0);
    std::uint32_t code = 0;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), code, isHex ? 16 : 10);
    return error == std::errc() && end != rest.data() + rest.size() && *end == ';' && !isForbidden(code);
}

/// Whether a text holds control characters, plain or as references. The parser lets them pass, but what is written of
/// them would be no XML.
bool holdsControlCharacters(std::string_view text) {
    if (std::any_of(text.begin(), text.end(), [](char c) { return isForbidden(static_cast<unsigned char>(c)); }))
        return true;
    for (std::size_t place = text.find("&#"); place != std::string_view::npos; place = text.find("&#", place + 2)) {
        if (!isSoundReference(text.substr(place + 2)))
            return true;
    }
    return false;
}

bool isReadable(std::string_view text) {
    return text.size() <= maxXmlBytes && hasFewAttributes(text) && !holdsControlCharacters(text);
}

/// The text with each carriage return as a character reference: a reader makes any other one a line feed. They come
/// from a reference themselves, and stand in texts and values alone.
std::string withReferences(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t end = text.find('\r'); end != std::string_view::npos; end = text.find('\r')) {
        result.append(text.substr(0, end)).append("&#13;");
        text.remove_prefix(end + 1);
    }
    return result.append(text);
}

} // namespace

bool loadXml(tinyxml2::XMLDocument& document, const std::string& path) {
    document.Clear();
    const std::optional<std::string> text = readFile(path, maxXmlBytes);
    if (text && isReadable(*text) && document.Parse(text->data(), text->size()) == tinyxml2::XML_SUCCESS &&
        document.RootElement())
        return true;
    document.Clear();
    return false;
}

bool saveXml(const tinyxml2::XMLDocument& document, const std::string& path) {
    tinyxml2::XMLPrinter printer;
    document.Print(&printer);
    return saveXml(printer, path);
}

bool saveXml(const tinyxml2::XMLPrinter& printer, const std::string& path) {
    const std::string text = withReferences({printer.CStr(), static_cast<std::size_t>(printer.CStrSize()) - 1});
    return isReadable(text) && writeFile(path, text);
}

void startXml(tinyxml2::XMLPrinter& printer, const std::string& rootName) {
    printer.PushDeclaration(declaration);
    printer.OpenElement(rootName.c_str());
}

tinyxml2::XMLElement& startXml(tinyxml2::XMLDocument& document, const std::string& rootName) {
    document.InsertEndChild(document.NewDeclaration(declaration));
    tinyxml2::XMLElement* root = document.NewElement(rootName.c_str());
    document.InsertEndChild(root);
    return *root;
}

tinyxml2::XMLElement& addXmlElement(tinyxml2::XMLElement& parent, const std::string& name, const std::string& text) {
    tinyxml2::XMLElement* element = parent.GetDocument()->NewElement(name.c_str());
    if (!text.empty())
        element->InsertEndChild(parent.GetDocument()->NewText(text.c_str()));
    parent.InsertEndChild(element);
    return *element;
}

} // namespace zdt
