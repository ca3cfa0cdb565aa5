#pragma once

#include "model/fileResNode.h"
#include "model/pictureSize.h"

#include <cstdint>
#include <string>
#include <vector>

/// How the pages say what a file is and what its place takes; the same in every language.
namespace zdt {

/// A size in bytes, such as "2.9 MB", "300 KB" and "1 MB".
[[nodiscard]] std::string bytesText(std::uint64_t bytes);

/// Pixels, as "192 × 192".
[[nodiscard]] std::string pixelsText(const PictureSize& size);

/// The sizes that a place takes, as "192 × 192 / 1080–1440 × 2160"; empty where any is taken.
[[nodiscard]] std::string sizesText(const std::vector<SizeRange>& sizes);

/// The pictures of a mask of `fileKind` bits, as "PNG / JPG"; empty without one.
[[nodiscard]] std::string kindsText(std::uint32_t kinds);

} // namespace zdt
