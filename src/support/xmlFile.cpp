#include "support/xmlFile.h"

#include "support/atomicFile.h"
#include "support/files.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace zdt {

namespace {

constexpr std::uint64_t maxXmlBytes = 16 * 1024 * 1024;
constexpr int maxAttributes = 1000;

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

bool isReadable(std::string_view text) {
    return text.size() <= maxXmlBytes && hasFewAttributes(text);
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

void DamagedXml::note(const std::string& path) {
    if (pathExists(path))
        _path = path;
}

bool DamagedXml::keepFrom(const std::string& path) {
    if (_path.empty() || _path != path)
        return true;
    std::string aside = path + ".damaged";
    for (int number = 2; isTaken(aside); ++number)
        aside = path + ".damaged-" + std::to_string(number);
    if (pathExists(path) && !moveIntoPlace(path, aside, Flush::no))
        return false;
    _path.clear();
    return true;
}

bool saveXml(tinyxml2::XMLDocument& document, const std::string& path) {
    tinyxml2::XMLPrinter printer;
    document.Print(&printer);
    const std::string text = withReferences({printer.CStr(), static_cast<std::size_t>(printer.CStrSize()) - 1});
    return isReadable(text) && writeFile(path, text);
}

tinyxml2::XMLElement& startXml(tinyxml2::XMLDocument& document, const std::string& rootName) {
    document.InsertEndChild(document.NewDeclaration());
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
