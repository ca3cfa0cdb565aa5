#include "lockscreen/layoutDocument.h"

#include "lockscreen/amazingElements.h"
#include "lockscreen/geometry.h"
#include "lockscreen/pictureNames.h"
#include "support/files.h"
#include "support/xmlFile.h"

#include <string_view>

namespace zdt {

namespace {

constexpr const char* rootTag = "layout";

/// What a document may hold, counted down while it is read.
struct LayoutBudget {
    std::size_t elements = maxLayoutElements;
    std::size_t names = maxLayoutNames;
    std::size_t nameBytes = maxLayoutNameBytes;
};

bool takeFrom(std::size_t& budget, std::size_t count) {
    const bool isEnough = count <= budget;
    budget -= isEnough ? count : 0;
    return isEnough;
}

bool fits(const tinyxml2::XMLElement& element, LayoutBudget& budget) {
    const char* attribute = element.Attribute("src");
    const std::string_view src = attribute ? attribute : "";
    const std::size_t names = src.empty() ? 0 : countNames(src);
    // No name is longer than the text that it comes from.
    if (!takeFrom(budget.elements, 1) || !takeFrom(budget.names, names) ||
        !takeFrom(budget.nameBytes, names * src.size()))
        return false;
    for (const auto* child = element.FirstChildElement(); child; child = child->NextSiblingElement()) {
        if (!fits(*child, budget))
            return false;
    }
    return true;
}

} // namespace

bool readLayout(const std::string& path, LayoutElements& elements) {
    elements.clear();
    tinyxml2::XMLDocument document;
    if (!loadXml(document, path))
        return false;
    const tinyxml2::XMLElement* root = document.RootElement();
    LayoutBudget budget;
    if (std::string_view(root->Name()) != rootTag || !fits(*root, budget))
        return false;
    for (const auto* element = root->FirstChildElement(); element; element = element->NextSiblingElement())
        elements.push_back(std::make_unique<AmazingChild>(element));
    return true;
}

bool writeLayout(const std::string& path, const LayoutElements& elements) {
    tinyxml2::XMLDocument document;
    tinyxml2::XMLElement& root = startXml(document, rootTag);
    root.SetAttribute("frameRate", "30");
    root.SetAttribute("version", "3.0");
    root.SetAttribute("screenwidth", "1080");
    for (const auto& element : elements) {
        if (tinyxml2::XMLElement* written = element->write(&document))
            root.InsertEndChild(written);
    }
    LayoutBudget budget;
    return fits(root, budget) && makePath(path) && saveXml(document, path);
}

FixedHeightForm::FixedHeightForm(const LayoutElements& elements, std::uint32_t height)
    : _elements(elements)
    , _height(height) {
    for (const auto& element : _elements)
        fix(*element);
}

FixedHeightForm::~FixedHeightForm() {
    for (const auto& element : _elements)
        anchor(*element);
    for (auto& [element, key, text] : _rewritten)
        element->setAttribute(key, std::move(text));
}

void FixedHeightForm::rewrite(AmazingChild& element, const std::string& key, const std::string& text) {
    const std::string old = element.attribute(key);
    if (text == old)
        return;
    _rewritten.push_back({&element, key, old});
    element.setAttribute(key, text);
}

void FixedHeightForm::fix(AmazingChild& element) {
    rewrite(element, "y", fixedPosition(element.attribute("y"), _height));
    if (dynamic_cast<const LockWallPaper*>(&element)) {
        const std::string prefix = std::string(heightToken) + "+";
        const std::string src = element.src();
        rewrite(element, "src", src.starts_with(prefix) ? src.substr(prefix.size()) : src);
        if (element.attribute("h") == screenHeightVariable)
            rewrite(element, "h", std::to_string(_height));
    }
    for (const auto& child : element.children())
        fix(*child);
}

void FixedHeightForm::anchor(AmazingChild& element) {
    const std::string y = element.attribute("y");
    if (std::string anchored = anchoredPosition(y, _height); anchored != y)
        element.setAttribute("y", std::move(anchored));
    for (const auto& child : element.children())
        anchor(*child);
}

} // namespace zdt
