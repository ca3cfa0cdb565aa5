#pragma once

#include "model/resNode.h"

namespace zdt {

/// The colours and pictures of the widgets that every application shares. Each application has a copy of its own, in
/// the directory "framework-res-zdext/" of its package.
class CommonSettingNode : public ResNode {
public:
    /// @param parent the module node, whose package directory must be set
    explicit CommonSettingNode(ResNode* parent);
};

} // namespace zdt
