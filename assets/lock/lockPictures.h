#pragma once

#include "assets/art/generation.h"

#include <QImage>

#include <string>
#include <vector>

/// The pictures of the lock screens, in the folder `drawable-hdpi/` beside their layouts.
namespace zdt::assets {

/// A place and a size in a layout, in pixels of a screen 1080 wide.
struct Cell {
    int width;
    int height;
};

inline constexpr Cell lockDigit{100, 200};
inline constexpr Cell lockColon{30, 200};
inline constexpr Cell lockArrow{100, 100};
inline constexpr Cell slideDigit{150, 300};
inline constexpr Cell slideColon{45, 300};
inline constexpr Cell slideTrack{840, 140};
inline constexpr Cell slideKnob{140, 140};

struct LockPicture {
    std::string path; ///< In the template.
    QImage (*draw)(const std::string& name, const Generation& generation);
};

[[nodiscard]] std::vector<LockPicture> lockPictures(const Generation& generation);

} // namespace zdt::assets
