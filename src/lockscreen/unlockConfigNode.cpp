#include "lockscreen/unlockConfigNode.h"

#include "lockscreen/unlockNode.h"
#include "model/textResNode.h"
#include "support/assertion.h"
#include "support/files.h"

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <string_view>

namespace zdt {

namespace {

constexpr const char* configFile = "unlock/theme.xml";
constexpr std::string_view styleKey = "style";

struct AttributeDefault {
    std::string_view name;
    std::string_view value;
};

/// The style follows from the kind of lock screen.
constexpr std::array<AttributeDefault, 10> attributeDefaults{{
    {styleKey, ""},
    {"layout", "layout1"},
    {"package", videoLockPackage},
    {"dynamicPath", "ucdscreenlock"},
    {"slideinAmaze", "true"},
    {"minversion", "1.4"},
    {"title-cn", "Zendro主题官方"},
    {"title", "Zendro Themes"},
    {"maxHeight", "2160"},
    {"baseVersion", "6.0"},
}};

std::string styleOf(const std::string& type) {
    return type == unlockType::video ? unlockType::slide : type;
}

bool isWritten(std::string_view attribute, const std::string& type, bool isGeneration5) {
    constexpr std::array<std::string_view, 3> ofDesign{"layout", "slideinAmaze", "maxHeight"};
    constexpr std::array<std::string_view, 7> ofPackage{"package",  "dynamicPath", "layout",   "minversion",
                                                        "title-cn", "title",       "maxHeight"};
    const auto holds = [&](const auto& names) {
        return std::find(names.begin(), names.end(), attribute) != names.end();
    };
    if (attribute == styleKey)
        return true;
    if (type == unlockType::amazing)
        return holds(ofDesign) || (attribute == "baseVersion" && !isGeneration5);
    if (type == unlockType::video || type == unlockType::custom)
        return holds(ofPackage);
    return false;
}

} // namespace

std::string readUnlockType(const std::string& themeDirectory, DamagedFile& damaged) {
    tinyxml2::XMLDocument document;
    if (themeDirectory.empty())
        return {};
    if (!loadXml(document, themeDirectory + configFile)) {
        damaged.note(themeDirectory + configFile);
        return {};
    }
    std::map<std::string, std::string> items;
    const tinyxml2::XMLElement* root = document.RootElement();
    for (const auto* item = root->FirstChildElement("item"); item; item = item->NextSiblingElement("item")) {
        if (const tinyxml2::XMLAttribute* attribute = item->FirstAttribute())
            items[attribute->Name()] = attribute->Value();
    }
    const std::string style = items["style"];
    std::string type = style.empty() ? unlockType::slide : style;
    if (type != unlockType::slide)
        return type;
    const std::string package = items["package"];
    if (package == videoLockPackage)
        return unlockType::video;
    return package == outsideEnginePackage ? unlockType::zooking : type;
}

UnlockConfigNode::UnlockConfigNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "config") {
    setPath(parent->path());
    for (const AttributeDefault& attribute : attributeDefaults) {
        const std::string value = attribute.name == styleKey ? styleOf(parent->value()) : std::string(attribute.value);
        adopt(std::make_unique<TextResNode>(std::string(attribute.name), value));
    }
}

bool UnlockConfigNode::save(bool all) {
    const std::string type = parent() ? parent()->value() : std::string();
    if ((!all && !isApplicable()) || type.empty())
        return true;
    const bool isGeneration5 = generationIndex(rootTypeMask()) == 0;
    tinyxml2::XMLDocument document;
    tinyxml2::XMLElement& root = startXml(document, "ZDTheme");
    for (const ResNode* child = firstChild(); child; child = child->next()) {
        const std::string attribute = child->name();
        if (!isWritten(attribute, type, isGeneration5))
            continue;
        const std::string value = attribute == styleKey ? styleOf(child->value()) : child->value();
        addXmlElement(root, "item").SetAttribute(attribute.c_str(), value.c_str());
    }
    const std::string file = rootDirectory() + configFile;
    auto* unlock = dynamic_cast<UnlockNode*>(parent());
    return !rootDirectory().empty() && makePath(file) && (!unlock || unlock->damaged().keepFrom(file)) &&
           saveXml(document, file);
}

} // namespace zdt
