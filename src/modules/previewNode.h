#pragma once

#include "model/resNode.h"

#include <string>

namespace zdt {

/// Splits the name of a numbered preview picture into its module and its number.
inline const std::string numberedPreviewPattern = R"(preview_(.+)_(\d+)\.jpg)";

/// The pictures that show the theme in a list: the cover, two small icons, a screen of each module, and further screens
/// that the theme's preview/ holds under a module's name.
class PreviewNode : public ResNode {
public:
    explicit PreviewNode(ResNode* parent);
};

} // namespace zdt
