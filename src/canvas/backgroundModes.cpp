#include "canvas/backgroundModes.h"

namespace zdt {

namespace {

constexpr int twoScreens = 2 * DesignSpace::width;
constexpr int alternateSourceWidth = 385;
/// Rows that a high screen has more than a low one above the middle.
constexpr int rowsAbove = (DesignSpace::highHeight - DesignSpace::lowHeight) / 2;
/// How much larger the phone shows the picture of a lock screen, and how far of that is above and beside the screen.
constexpr double zoom = 1.1;
constexpr double zoomOutside = 0.05;

std::optional<BackgroundPlace> fromSource(const QSize& picture, const BackgroundModes& modes,
                                          const DesignSpace& space) {
    const EdgeRect& part = *modes.source;
    const int width = modes.fitAlternate ? alternateSourceWidth : part.width();
    const QRectF wanted(part.left, part.top, width, part.height());
    const QRectF source = wanted & QRectF(QPointF(), picture);
    if (width <= 0 || part.height() <= 0 || source.isEmpty())
        return std::nullopt;
    // What of it lies outside the picture keeps its place, undrawn, so that nothing is distorted.
    const double x = space.size().width() / wanted.width();
    const double y = space.size().height() / wanted.height();
    return BackgroundPlace{
        source,
        {(source.x() - wanted.x()) * x, (source.y() - wanted.y()) * y, source.width() * x, source.height() * y}};
}

BackgroundPlace kept(const QSize& picture, bool cropTop) {
    const double top = cropTop && picture.height() > DesignSpace::lowHeight ? rowsAbove : 0;
    const QSizeF size(DesignSpace::width, DesignSpace::lowHeight);
    return {{QPointF(0, top), size}, {QPointF(), size}};
}

/// Scaled to the height of the screen, in the middle of it.
BackgroundPlace fitted(const QSize& picture, const DesignSpace& space) {
    const QRectF whole(QPointF(), picture);
    if (!space.isMode2)
        return {whole, {0, 0, DesignSpace::width, DesignSpace::lowHeight}};
    const double width = static_cast<double>(DesignSpace::width) * DesignSpace::highHeight / picture.height();
    return {whole, {(DesignSpace::width - width) / 2, 0, width, DesignSpace::highHeight}};
}

/// The middle of the screen's proportions.
BackgroundPlace middle(const QSize& picture, const DesignSpace& space) {
    const QSizeF size = QSizeF(space.size()).scaled(picture, Qt::KeepAspectRatio);
    const QPointF corner((picture.width() - size.width()) / 2, (picture.height() - size.height()) / 2);
    return {{corner, size}, QRectF(QPointF(), space.size())};
}

BackgroundPlace zoomed(const QSize& picture) {
    const QSizeF size(picture);
    return {{QPointF(), size}, {QPointF(-zoomOutside * size.width(), -zoomOutside * size.height()), size * zoom}};
}

} // namespace

std::optional<BackgroundPlace> backgroundPlace(const QSize& picture, const BackgroundModes& modes,
                                               const DesignSpace& space) {
    if (picture.isEmpty())
        return std::nullopt;
    if (modes.source)
        return fromSource(picture, modes, space);
    if (picture.width() == twoScreens)
        return middle(picture, space);
    const bool isLow = picture.height() == DesignSpace::lowHeight;
    if (picture.width() != DesignSpace::width || (!isLow && picture.height() != DesignSpace::highHeight))
        return std::nullopt;
    if (modes.keepFull)
        return kept(picture, modes.cropTop);
    if (modes.fit || modes.fitAlternate || (isLow && space.isMode2))
        return fitted(picture, space);
    if (modes.noZoom)
        return BackgroundPlace{QRectF(QPointF(), picture), QRectF(QPointF(), picture)};
    return zoomed(picture);
}

} // namespace zdt
