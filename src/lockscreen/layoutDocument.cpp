#include "lockscreen/layoutDocument.h"

#include "lockscreen/amazingElements.h"
#include "support/files.h"
#include "support/xmlFile.h"

#include <string_view>

namespace zdt {

namespace {

constexpr const char* rootTag = "layout";

std::unique_ptr<AmazingChild> makeElement(const tinyxml2::XMLElement& element) {
    if (std::string_view(element.Name()) == "unlocker")
        return std::make_unique<UnlockerData>(&element);
    auto plain = std::make_unique<AmazingChild>(&element);
    if (isWallpaper(*plain))
        return std::make_unique<LockWallPaper>(&element);
    return plain;
}

} // namespace

bool readLayout(const std::string& path, LayoutElements& elements) {
    elements.clear();
    tinyxml2::XMLDocument document;
    if (!loadXml(document, path))
        return false;
    const tinyxml2::XMLElement* root = document.RootElement();
    if (std::string_view(root->Name()) != rootTag)
        return false;
    for (const auto* element = root->FirstChildElement(); element; element = element->NextSiblingElement())
        elements.push_back(makeElement(*element));
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
    return makePath(path) && saveXml(document, path);
}

} // namespace zdt
