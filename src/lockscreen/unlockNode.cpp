#include "lockscreen/unlockNode.h"

#include "lockscreen/amazingUnlockNode.h"
#include "lockscreen/customUnlockNode.h"
#include "lockscreen/unlockConfigNode.h"
#include "lockscreen/videoUnlockNode.h"

namespace zdt {

UnlockNode::UnlockNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "unlock") {
    setPath("unlock/");
    setRawValue(readUnlockType(rootDirectory(), _damaged));
    emplaceChild<UnlockConfigNode>();
    emplaceChild<VideoUnlockNode>();
    emplaceChild<AmazingUnlockNode>();
    emplaceChild<CustomUnlockNode>();
}

int UnlockNode::setValue(const std::string& value) {
    constexpr int noConfig = -1;
    ResNode* style = findByPath(KeyPath{"config", "style"});
    if (!style)
        return noConfig;
    setRawValue(value);
    return style->setValue(value);
}

} // namespace zdt
