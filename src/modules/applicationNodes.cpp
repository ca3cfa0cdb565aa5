#include "modules/applicationNodes.h"

#include "modules/commonSettingNode.h"
#include "modules/imageNode.h"
#include "modules/keyBlock.h"
#include "modules/tables/contactsKeys.h"
#include "modules/tables/mmsKeys.h"
#include "modules/tables/phoneKeys.h"
#include "modules/tables/recorderKeys.h"
#include "modules/tables/systemuiKeys.h"

namespace zdt {

namespace {

ResNode& addPlainModule(ResNode& theme, const char* name, const char* package) {
    auto& module = theme.emplaceChild<ResNode>(typeMask::bigOnly, name);
    module.setPath(package);
    return module;
}

} // namespace

ContactsNode::ContactsNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "contacts") {
    setPath("com.android.contacts/");
    emplaceChild<ImageContactsNode>();
    addKeyBlock<tables::contactsKeys>(*this);
    emplaceChild<CommonSettingNode>();
}

PhoneNode::PhoneNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "phone") {
    setPath("com.android.phone/");
    emplaceChild<ImagePhoneNode>();
    addKeyBlock<tables::phoneKeys>(*this);
    emplaceChild<CommonSettingNode>();
}

SystemuiNode::SystemuiNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "systemui") {
    setPath("com.android.systemui/");
    addKeyBlock<tables::systemuiKeys>(*this);
    emplaceChild<ImageSystemuiNode>();
    emplaceChild<CommonSettingNode>();
}

void addRecorderModule(ResNode& theme) {
    ResNode& module = addPlainModule(theme, "recorder", "com.android.phone.recorder/");
    addKeyBlock<tables::recorderKeys>(module);
    module.emplaceChild<CommonSettingNode>();
}

void addTelecomModule(ResNode& theme) {
    ResNode& module = addPlainModule(theme, "telecom", "com.android.server.telecom/");
    module.emplaceChild<ImageTelecomNode>();
    module.emplaceChild<CommonSettingNode>();
}

void addMmsModule(ResNode& theme) {
    ResNode& module = addPlainModule(theme, "mms", "com.android.mms/");
    module.emplaceChild<ImageMmsNode>();
    addKeyBlock<tables::mmsKeys>(module);
    module.emplaceChild<CommonSettingNode>();
}

} // namespace zdt
