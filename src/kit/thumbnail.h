#pragma once

#include <QImage>
#include <QSize>

#include <string>

class QPainter;
class QRectF;

/// Small pictures of a theme's PNG and JPEG files, as lists and cards show them.
namespace zdt {

/// A picture no larger than `bounds` (device pixels) and in its own proportions; one that is smaller stays as it is.
/// Known by its content. Null for what can't be read, is no plain file, or claims more pixels than any picture of a
/// theme has. A JPEG is decoded at about the size that is asked for, so that a wallpaper takes a few milliseconds.
[[nodiscard]] QImage readThumbnail(const std::string& path, const QSize& bounds);

/// Draws the ground behind pictures that may be see-through, within rounded corners.
void paintChecker(QPainter& painter, const QRectF& place, double radius);

} // namespace zdt
