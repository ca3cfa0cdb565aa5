#pragma once

#include "assets/art/generation.h"

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QString>

#include <functional>
#include <vector>

namespace zdt::assets {

/// A picture to look at: a title, headings and blocks of things with their names. As high as it needs.
class Sheet {
public:
    static constexpr int width = 2000;
    static constexpr int margin = 60;
    static constexpr int innerWidth = width - 2 * margin;

    using Paint = std::function<void(QPainter&, const QRectF&)>;
    using PaintCell = std::function<void(QPainter&, const QRectF&, std::size_t)>;

    Sheet(const Generation& generation, const QString& group);

    /// A block of the inner width.
    void add(double height, Paint paint);
    void addHeading(const QString& text, const QString& note = {});
    /// Cells in rows, over a ground that covers all of them.
    void addGrid(std::size_t count, int columns, double rowHeight, PaintCell paint, Paint ground = {});

    [[nodiscard]] QImage paint() const;

private:
    struct Block {
        double height;
        Paint paint;
    };
    std::vector<Block> _blocks;
};

/// A small line of text in the middle of a place, cut with an ellipsis where it is too long.
void paintName(QPainter& painter, const QRectF& line, const QString& text, QRgb ink = 0xff5c626b);

/// The same in white on a dark plate, for a ground of any lightness.
void paintPlate(QPainter& painter, const QRectF& line, const QString& text);

/// The ground on which see-through pictures are seen.
void paintChecker(QPainter& painter, const QRectF& area, bool dark = false);

/// A picture in the middle of a place, made smaller if it must.
void paintFitted(QPainter& painter, const QRectF& place, const QImage& picture);

/// A picture that fills a place with rounded corners; what reaches over is cut.
void paintCovering(QPainter& painter, const QRectF& place, double radius, const QImage& picture);

/// Whether what the picture shows is hardly seen on the light ground, and better on the dark one.
[[nodiscard]] bool isFaint(const QImage& picture);

} // namespace zdt::assets
