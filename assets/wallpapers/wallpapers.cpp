#include "assets/wallpapers/wallpapers.h"

#include "assets/art/picture.h"
#include "assets/art/shapes.h"

#include <algorithm>
#include <array>

namespace zdt::assets {

namespace {

/// In parts of the picture: the middle by width and height, the radius by the longer side.
struct Disc {
    double x;
    double y;
    double radius;
    QRgb fill;
};

constexpr std::array<Disc, 6> discs{{
    {1.02, 0.30, 0.34, 0x38ffffff},
    {0.12, 1.00, 0.46, 0x3dffffff},
    {0.72, 0.92, 0.36, 0x2effffff},
    {0.95, 0.62, 0.20, 0x33ffffff},
    {0.34, 0.66, 0.14, 0x29ffffff},
    {0.60, 1.08, 0.30, 0x1f007dfe},
}};

/// The gradient, from the top left to the bottom right, by generation.
constexpr std::array<std::array<QRgb, 2>, generationCount> skies{
    {{0xffe6f5f2, 0xff8ccfc4}, {0xffeaf1fd, 0xff93b9ee}, {0xffefedfc, 0xffa1aaea}}};

} // namespace

void paintWallpaper(QPainter& painter, const QRectF& area, const Generation& generation) {
    QLinearGradient sky(area.topLeft(), area.bottomRight());
    sky.setColorAt(0, palette::colour(skies[generation.index][0]));
    sky.setColorAt(1, palette::colour(skies[generation.index][1]));
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.fillRect(area, sky);
    const double side = std::max(area.width(), area.height());
    for (const Disc& disc : discs) {
        const QPointF middle(area.left() + disc.x * area.width(), area.top() + disc.y * area.height());
        drawDisc(painter, middle, disc.radius * side, disc.fill);
    }
    painter.restore();
}

QImage drawWallpaper(std::string_view, QSize size, const Generation& generation) {
    Canvas canvas(size);
    paintWallpaper(canvas.painter(), canvas.area(), generation);
    return canvas.finish();
}

} // namespace zdt::assets
