#pragma once

#include "model/resNode.h"

#include <string>
#include <vector>

namespace zdt::test {

/// The names of a node's children, in the tree's order.
[[nodiscard]] inline std::vector<std::string> childNames(const ResNode& node) {
    std::vector<std::string> names;
    for (const ResNode* child = node.firstChild(); child; child = child->next())
        names.push_back(child->name());
    return names;
}

} // namespace zdt::test
