#include "modules/themeNode.h"

#include "lockscreen/unlockNode.h"
#include "model/textResNode.h"
#include "modules/applicationNodes.h"
#include "modules/description.h"
#include "modules/iconsNode.h"
#include "modules/lancherNode.h"
#include "modules/previewNode.h"
#include "modules/wallpaperNode.h"
#include "support/files.h"

namespace zdt {

ThemeNode::ThemeNode(TypeMask mask, const std::string& directory)
    : ResNode(mask, "ZDTheme") {
    setPath(directory);
    emplaceChild<UnlockNode>();
    emplaceChild<WallpaperNode>();
    emplaceChild<IconsNode>();
    emplaceChild<LancherNode>();
    emplaceChild<PreviewNode>();
    emplaceChild<ContactsNode>();
    emplaceChild<PhoneNode>();
    addRecorderModule(*this);
    addTelecomModule(*this);
    addMmsModule(*this);
    emplaceChild<SystemuiNode>();
    addDescription();
}

void ThemeNode::addDescription() {
    Description description;
    if (!path().empty())
        description = readDescriptionFile(path() + std::string(descriptionFile), &_damaged);
    for (const DescriptionField& field : descriptionFields) {
        const std::string key(field.key);
        const std::string& written = description[key];
        auto text = std::make_unique<TextResNode>(key, written.empty() ? std::string(field.fallback) : written);
        text->setRegex(std::string(field.pattern));
        adopt(std::move(text));
    }
}

bool ThemeNode::save(bool /*all*/) {
    if (path().empty() || !makePath(path()))
        return false;
    tinyxml2::XMLDocument document;
    tinyxml2::XMLElement& root = startXml(document, std::string(descriptionRoot));
    for (const ResNode* child = firstChild(); child; child = child->next()) {
        if (child->isLeaf())
            addXmlElement(root, child->name(), child->value());
    }
    const std::string file = path() + std::string(descriptionFile);
    return _damaged.keepFrom(file) && saveXml(document, file);
}

} // namespace zdt
