#pragma once

#include "model/resNode.h"

namespace zdt {

/// The launcher. Its keys, unlike those of the other applications, take part in small themes as well, and so does its
/// common block, which in turn is absent from generation 5.
class LancherNode : public ResNode {
public:
    explicit LancherNode(ResNode* parent);
};

} // namespace zdt
