#pragma once

#include "assets/art/generation.h"

#include <QSize>

#include <cstdint>
#include <string>
#include <vector>

namespace zdt::assets {

/// A picture that themes of a generation need.
struct Demand {
    std::string directory; ///< In the theme, ending in "/".
    std::string name;
    QSize size; ///< Empty if any will do.
    bool isJpeg = false;
    std::uint64_t maxBytes = 0;

    [[nodiscard]] std::string path() const { return directory + name; }
};

/// What the resource tree asks for, over all kinds of theme, big and small, in both languages, and the ground under
/// icons of other applications; each file once, in the order of the paths. Previews aren't among them, nor is anything
/// but pictures.
[[nodiscard]] std::vector<Demand> collectDemands(const Generation& generation);

} // namespace zdt::assets
