#include "lockscreen/amazingChild.h"

#include "lockscreen/pictureNames.h"
#include "support/assertion.h"
#include "support/files.h"

#include <tinyxml2.h>

namespace zdt {

AmazingChild::AmazingChild(std::string name, Attributes attributes)
    : _name(std::move(name))
    , _attributes(std::move(attributes)) {}

AmazingChild::AmazingChild(const tinyxml2::XMLElement* element) {
    if (!element)
        return;
    _name = element->Name();
    for (const auto* attribute = element->FirstAttribute(); attribute; attribute = attribute->Next())
        _attributes[attribute->Name()] = attribute->Value();
    for (const auto* child = element->FirstChildElement(); child; child = child->NextSiblingElement())
        _children.push_back(std::make_unique<AmazingChild>(child));
}

AmazingChild::AmazingChild(const AmazingChild& other)
    : _name(other._name)
    , _attributes(other._attributes) {
    for (const auto& child : other._children)
        _children.push_back(std::make_unique<AmazingChild>(*child));
}

AmazingChild::AmazingChild(AmazingChild&& other) noexcept
    : _name(std::move(other._name))
    , _attributes(std::move(other._attributes))
    , _children(std::move(other._children)) {}

AmazingChild::~AmazingChild() = default;

std::string AmazingChild::attribute(const std::string& name) const {
    const auto entry = _attributes.find(name);
    return entry == _attributes.end() ? std::string() : entry->second;
}

AmazingChild& AmazingChild::addChild(std::unique_ptr<AmazingChild> child) {
    return *_children.emplace_back(std::move(child));
}

void AmazingChild::setFile(const std::string& path) {
    const std::string file = path.substr(path.rfind('/') + 1);
    if (const auto entry = _attributes.find("src"); entry != _attributes.end() && !file.empty())
        entry->second = file;
}

tinyxml2::XMLElement* AmazingChild::write(tinyxml2::XMLDocument* doc) const {
    ZDT_ASSERT(doc, "amazingChild");
    if (_name.empty())
        return nullptr;
    tinyxml2::XMLElement* element = doc->NewElement(_name.c_str());
    for (const auto& [key, value] : _attributes) {
        if (!key.empty() && !value.empty())
            element->SetAttribute(key.c_str(), value.c_str());
    }
    for (const auto& child : _children) {
        if (tinyxml2::XMLElement* written = child->write(doc))
            element->InsertEndChild(written);
    }
    return element;
}

std::optional<std::vector<std::string>> AmazingChild::resources() const {
    const bool isPicture = _name == "image" || _name == "frame";
    if (!isPicture || src().empty())
        return std::vector<std::string>();
    return expandSource(src());
}

bool AmazingChild::copyResources(const std::string& sourceDirectory, const std::string& targetDirectory) const {
    const std::optional<std::vector<std::string>> names = resources();
    if (!names)
        return false;
    for (const std::string& file : *names) {
        if (!isBareFileName(file) || !linkOrCopyFile(sourceDirectory + file, targetDirectory + file))
            return false;
    }
    for (const auto& child : _children) {
        if (!child->copyResources(sourceDirectory, targetDirectory))
            return false;
    }
    return true;
}

bool isBareFileName(const std::string& name) {
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos;
}

} // namespace zdt
