#include "modules/lancherNode.h"

#include "model/textResNode.h"
#include "modules/commonSettingNode.h"
#include "modules/imageNode.h"
#include "modules/keyBlock.h"
#include "modules/tables/launcherKeys.h"
#include "support/assertion.h"

namespace zdt {

LancherNode::LancherNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "launcher") {
    setPath("com.zendro.android.launcher/");
    emplaceChild<ImageLancherNode>();
    const ConfigResNode& keys = addKeyBlock<tables::launcherKeys, launcherKeys>(*this);

    // These two shadows may be given any alpha, although their default is wholly transparent.
    for (const char* name : {"folder_app_text_shadowColor", "folderadd_text_shadowColor"}) {
        auto* node = dynamic_cast<ColorTextResNode*>(keys.findChild(name));
        ZDT_ASSERT(node, "lancherNode");
        node->setMaxAlpha(ColorTextResNode::opaque);
    }

    auto commonSetting = std::make_unique<CommonSettingNode>(this);
    for (ResNode* node : commonSetting->collectNodes()) {
        node->removeTypeBits(typeMask::generation5);
        node->addTypeBits(typeMask::smallTheme);
    }
    adopt(std::move(commonSetting));
}

} // namespace zdt
