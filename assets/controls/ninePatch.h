#pragma once

#include <QImage>
#include <QRect>

#include <vector>

namespace zdt::assets {

/// Pixels in a row of a picture's edge.
struct Run {
    int start;
    int length;
};

/// The parts of a picture that are drawn larger where the picture must fill more space, and the part that its content
/// may cover. All in pixels of the picture without its guide lines.
struct Guides {
    std::vector<Run> stretchAcross;
    std::vector<Run> stretchDown;
    QRect content;
};

/// One run in the middle of both directions, with `corner` pixels fixed at each end, and a content `padding` pixels
/// from each edge.
[[nodiscard]] Guides evenGuides(QSize size, int corner, int padding);

/// The picture with a border of one pixel that holds the guide lines, black on transparent: the stretched parts at the
/// top and left, the content at the right and bottom.
[[nodiscard]] QImage addGuides(const QImage& picture, const Guides& guides);

} // namespace zdt::assets
