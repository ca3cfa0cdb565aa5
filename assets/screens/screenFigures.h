#pragma once

class QPainter;
class QRectF;

/// What of the phone's screens has colours of its own. Every number is a variant; they repeat after a few.
namespace zdt::assets {

/// A person from the shoulders up, in a disc.
void paintPortrait(QPainter& painter, const QRectF& area, int variant);
/// The disc alone.
void paintPortraitDisc(QPainter& painter, const QRectF& area, int variant);

/// A landscape with rounded corners.
void paintPhoto(QPainter& painter, const QRectF& area, double radius, int variant);

} // namespace zdt::assets
