#pragma once

#include <QRect>
#include <QSize>

#include <cstddef>
#include <cstdint>
#include <vector>

class QImage;

namespace zdt {

/// A pixel of a picture that isn't transparent. Its form in a file: 12 bytes, each field little-endian.
struct CFileImagePoint {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t alpha = 0; ///< 1 to 255.

    friend bool operator==(const CFileImagePoint&, const CFileImagePoint&) = default;
};

/// All of them, row by row.
using PixelList = std::vector<CFileImagePoint>;

/// The shape of a picture that takes a colour. In memory it is an alpha mask, cropped to the ink: a byte for each pixel
/// where a point takes twelve, and rows that can be skipped, filled and blended in one go where points are single.
class InkMask {
public:
    InkMask() = default;
    [[nodiscard]] static InkMask ofImage(const QImage& picture);
    /// `alphas` has one for each pixel of `size`, row by row.
    [[nodiscard]] static InkMask ofAlphas(const QSize& size, const std::vector<std::uint8_t>& alphas);

    /// Hands each point to `visit`, row by row: a list of all may take twelve times as much as the mask.
    template <typename Visit>
    void visitPoints(const Visit& visit) const;
    [[nodiscard]] std::size_t pointCount() const;
    [[nodiscard]] PixelList points() const;

    /// The picture's size in pixels.
    [[nodiscard]] const QSize& size() const { return _size; }
    /// The tight bounds of what isn't transparent; empty if nothing is.
    [[nodiscard]] const QRect& ink() const { return _ink; }
    /// Where all is opaque: the tallest run of such rows as wide as the ink. Empty for most.
    [[nodiscard]] const QRect& core() const { return _core; }
    /// The alphas of a row, from the ink's left to its right; `y` must lie in the ink.
    [[nodiscard]] const std::uint8_t* row(int y) const;
    /// 0 outside of the ink.
    [[nodiscard]] int alphaAt(const QPoint& point) const;
    [[nodiscard]] std::size_t bytes() const { return _alpha.size(); }

    /// The same shape in another size, smoothly scaled. Both sides must be above 0.
    [[nodiscard]] InkMask scaledTo(const QSize& size) const;

private:
    InkMask(const QSize& size, const std::vector<std::uint8_t>& whole);
    void findInk(const std::vector<std::uint8_t>& whole);
    void findCore();

    QSize _size{0, 0};
    QRect _ink;
    QRect _core;
    std::vector<std::uint8_t> _alpha; ///< Of the ink, row by row.
};

template <typename Visit>
void InkMask::visitPoints(const Visit& visit) const {
    for (int y = _ink.top(); y <= _ink.bottom(); ++y) {
        const std::uint8_t* alphas = row(y);
        for (int x = 0; x < _ink.width(); ++x) {
            if (alphas[x] != 0)
                visit(CFileImagePoint{_ink.left() + x, y, alphas[x]});
        }
    }
}

} // namespace zdt
