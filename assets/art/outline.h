#pragma once

#include <QPainterPath>

#include <string_view>

namespace zdt::assets {

/// A path written as text: letters with the numbers that they take, all coordinates absolute.
///
///     M x y              starts a line
///     L x y, H x, V y    straight on
///     Q x y x y          a curve with one control point, then the end
///     C x y x y x y      a curve with two control points, then the end
///     Z                  closes the line
///     O x y r            a circle
///     R x y w h r        a rectangle with rounded corners
///     A x y r from by    an arc of a circle: degrees, from three o'clock on against the clock
///
/// A text that isn't well formed is a programming error.
[[nodiscard]] QPainterPath readOutline(std::string_view text);

} // namespace zdt::assets
