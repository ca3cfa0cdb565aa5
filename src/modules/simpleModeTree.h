#pragma once

#include "model/resNode.h"

#include <memory>

namespace zdt {

/// Builds the tree of a theme's shared settings: a module, in it groups, in these a `SimpleModeImplNode` for each item.
/// Their names are words of the interface. It points into the theme's tree and must go before that.
///
/// The items of the module "commonSetting" drive the copies that the applications have of the shared widgets; a source
/// that an application's own item has, too, is left to that.
[[nodiscard]] std::unique_ptr<ResNode> buildSimpleModeTree(ResNode& theme);

} // namespace zdt
