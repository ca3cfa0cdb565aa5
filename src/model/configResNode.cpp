#include "model/configResNode.h"

#include "model/textResNode.h"
#include "support/assertion.h"
#include "support/files.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <unordered_set>

namespace zdt {

namespace {

constexpr const char* source = "configResNode";
constexpr const char* colourType = "color";
constexpr int blockKind = 2;

using Keys = std::vector<std::string>;

/// One step of the merge. Once a key of `merged` is found further on in `added`, the keys up to that place come first
/// and both sides are level there.
Keys mergePair(const Keys& merged, const Keys& added) {
    Keys result;
    auto left = merged.begin();
    auto right = added.begin();
    while (left != merged.end() && right != added.end()) {
        const auto same = std::find(right, added.end(), *left);
        if (same == added.end()) {
            result.push_back(*left++);
        } else if (same != right) {
            result.insert(result.end(), right, same);
            right = same;
        } else {
            result.push_back(*left++);
            ++right;
        }
    }
    result.insert(result.end(), left, merged.end());
    result.insert(result.end(), right, added.end());
    return result;
}

void printValue(tinyxml2::XMLPrinter& printer, const std::string& nodeName, const ResNode& child) {
    printer.OpenElement(nodeName.c_str());
    printer.PushAttribute("name", child.name().c_str());
    if (const std::string value = child.value(); !value.empty())
        printer.PushText(value.c_str());
    printer.CloseElement();
}

} // namespace

std::vector<std::string> mergeKeyLists(const std::vector<KeyList>& lists) {
    Keys merged;
    for (const KeyList& list : lists)
        merged = mergePair(merged, list.second);
    std::unordered_set<std::string> seen;
    std::erase_if(merged, [&](const std::string& key) { return !seen.insert(key).second; });
    return merged;
}

ConfigKeys resolveKeys(const ConfigBlock& block) {
    ConfigKeys resolved{{}, block.defaultType, block.types};
    std::map<std::string, TypeMask> masks;
    for (const auto& [listMask, keys] : block.keyLists) {
        for (const std::string& key : keys)
            masks[key] |= listMask;
    }
    const auto find = [](const std::map<std::string, std::string>& map, const std::string& key,
                         const std::string& otherwise) {
        const auto entry = map.find(key);
        return entry == map.end() ? otherwise : entry->second;
    };
    for (const std::string& key : mergeKeyLists(block.keyLists))
        resolved.keys.push_back(
            {key, masks[key], find(block.defaults, key, {}), find(block.types, key, block.defaultType)});
    return resolved;
}

ConfigResNode::ConfigResNode(ResNode* parent, TypeMask mask, std::string name, const ConfigBlock& block)
    : ConfigResNode(parent, mask, std::move(name), resolveKeys(block), block.directory) {}

ConfigResNode::ConfigResNode(ResNode* parent, TypeMask mask, std::string name, const ConfigKeys& keys,
                             std::string directory)
    : ResNode(parent, mask, std::move(name))
    , _rootElement("resources")
    , _defaultType(keys.defaultType)
    , _typeMap(keys.types) {
    setValueKind(blockKind);
    setPath(std::move(directory));
    for (const ConfigKeys::Key& key : keys.keys) {
        if (key.type == colourType)
            adopt(std::make_unique<ColorTextResNode>(key.mask, key.name, key.fallback));
        else
            adopt(std::make_unique<TextResNode>(key.mask, key.name, key.fallback));
    }
    readFile();
}

const std::string& ConfigResNode::typeOf(const std::string& key) const {
    const auto entry = _typeMap.find(key);
    return entry == _typeMap.end() ? _defaultType : entry->second;
}

std::string ConfigResNode::filePath() const {
    const std::string directory = nodeDirectory();
    return directory.empty() ? std::string() : directory + "theme.xml";
}

void ConfigResNode::readFile() {
    const std::string path = filePath();
    tinyxml2::XMLDocument document;
    if (path.empty() || !loadXml(document, path)) {
        _damaged.note(path);
        return;
    }
    const tinyxml2::XMLElement* root = document.RootElement();
    _rootElement = root->Name();
    std::map<std::string_view, const char*> values;
    for (const auto* element = root->FirstChildElement(); element; element = element->NextSiblingElement()) {
        const char* key = element->Attribute("name");
        const char* text = element->GetText();
        if (key && text)
            values[key] = text;
    }
    for (ResNode* child = firstChild(); child; child = child->next()) {
        // A refused value leaves the default, and its code in the child's errors for the list of problems.
        if (const auto value = values.find(child->name()); value != values.end())
            static_cast<void>(child->setValue(value->second));
    }
}

bool ConfigResNode::save(bool all) {
    const std::string path = filePath();
    if (path.empty())
        return false;
    tinyxml2::XMLPrinter printer;
    startXml(printer, _rootElement);
    bool isEmpty = true;
    for (const ResNode* child = firstChild(); child; child = child->next()) {
        if (!all && !child->isApplicable())
            continue;
        const std::string& nodeName = typeOf(child->name());
        ZDT_ASSERT(!nodeName.empty() || nodeName == _defaultType, source);
        if (nodeName.empty())
            continue;
        printValue(printer, nodeName, *child);
        isEmpty = false;
    }
    printer.CloseElement();
    return isEmpty || (makePath(path) && _damaged.keepFrom(path) && saveXml(printer, path));
}

} // namespace zdt
