#include "support/xmlFile.h"

#include "support/atomicFile.h"
#include "support/files.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace zdt {

namespace {

constexpr std::uint64_t maxXmlBytes = 16 * 1024 * 1024;
constexpr int maxAttributes = 1000;

/// Whether no element has more attributes than `maxAttributes`: the parser compares each with all before it, and a file
/// of many would take minutes. Any "=" between "<" and ">" counts, so that text can only make the answer stricter.
bool hasFewAttributes(std::string_view text) {
    int count = 0;
    for (const char c : text) {
        if (c == '<' || c == '>')
            count = 0;
        else if (c == '=' && ++count > maxAttributes)
            return false;
    }
    return true;
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
    if (text && hasFewAttributes(*text) && document.Parse(text->data(), text->size()) == tinyxml2::XML_SUCCESS &&
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
    return writeFile(path, withReferences({printer.CStr(), static_cast<std::size_t>(printer.CStrSize()) - 1}));
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
