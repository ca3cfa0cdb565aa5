#pragma once

#include <QImage>
#include <QSize>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// The pictures that a theme shows of itself in a list, drawn from the preview of its lock screen. Plain work on images
/// and files, for any thread.
namespace zdt {

/// The qualities that are tried, one after the other, until a JPEG is small enough.
inline constexpr std::array previewQualities{80, 60, 40, 20};

/// The middle of a picture, or its top for an upright `size`: as much of it as has the proportions of `size`, smoothly
/// scaled to exactly that size in pixels. Null for a null picture.
[[nodiscard]] QImage covering(const QImage& picture, const QSize& size);

/// A JPEG of at most `maxBytes`, of the best of `previewQualities` that gives one; empty if none does.
[[nodiscard]] std::string encodeWithin(const QImage& image, std::uint64_t maxBytes);

/// A picture to be drawn.
struct RenderTarget {
    std::string name;    ///< Such as "cover.jpg".
    QSize size;          ///< Pixels.
    std::string current; ///< The file that stands in the theme; empty for none.
};

/// What came of it.
struct RenderedPicture {
    std::string name;
    bool isMade = false;
    std::string file; ///< The new one; empty if the current one is the same.
};

/// Draws all targets from one picture, as files of at most `previewMaxBytes` in `folder`, which ends in "/" and is
/// empty for none. A source that can't be read, or was cut, makes no picture.
[[nodiscard]] std::vector<RenderedPicture>
renderPreviews(const std::string& source, const std::vector<RenderTarget>& targets, const std::string& folder);

} // namespace zdt
