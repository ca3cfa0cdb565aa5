#pragma once

#include "lockscreen/amazingChild.h"

#include <memory>
#include <string>
#include <vector>

/// The lock screen's layout document: a root element `layout` with the attributes `frameRate` "30", `version` "3.0" and
/// `screenwidth` "1080", and the elements of the screen in it, in the order in which they are painted.
namespace zdt {

using LayoutElements = std::vector<std::unique_ptr<AmazingChild>>;

/// Reads the elements, each as the class that stands for it. False, with no elements, for a file that is missing, isn't
/// well formed, nests deeper than any layout or has another root.
[[nodiscard]] bool readLayout(const std::string& path, LayoutElements& elements);

/// Writes the elements, making the folder. The file is written whole or not at all.
[[nodiscard]] bool writeLayout(const std::string& path, const LayoutElements& elements);

} // namespace zdt
