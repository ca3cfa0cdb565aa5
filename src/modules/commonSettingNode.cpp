#include "modules/commonSettingNode.h"

#include "modules/imageNode.h"
#include "modules/keyBlock.h"
#include "modules/tables/commonSettingKeys.h"
#include "support/assertion.h"

namespace zdt {

CommonSettingNode::CommonSettingNode(ResNode* parent)
    : ResNode(parent, parent->typeMask(), "commonSetting") {
    const std::string directoryPath = parent->path();
    ZDT_ASSERT(!directoryPath.empty(), "commonSettingNode");
    setPath(directoryPath + "framework-res-zdext/");
    emplaceChild<ImageCommonSettingNode>();
    addKeyBlock<tables::commonSettingKeys>(*this);
}

} // namespace zdt
