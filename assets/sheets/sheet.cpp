#include "assets/sheets/sheet.h"

#include "assets/art/faces.h"
#include "assets/art/palette.h"
#include "assets/art/shapes.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace zdt::assets {

namespace {

constexpr QRgb pageColour = 0xfff3f4f6;
constexpr QRgb titleInk = 0xff1b1e23;
constexpr QRgb noteInk = 0xff7a818b;
constexpr QRgb lightSquare = 0xffd9dde3;
constexpr QRgb darkSquare = 0xff525964;
constexpr QRgb plateColour = 0xb01b1e23;
constexpr double blockGap = 28;
constexpr Face nameFace{interFace, 400};
constexpr int namePixels = 17;

const char* nameOf(Language language) {
    switch (language) {
    case Language::paper:
        return "OVUI 5.0  Paper";
    case Language::dune:
        return "OVUI 8.0  Dune";
    case Language::aurora:
        return "OVUI 9.1  Aurora";
    }
    return "";
}

/// Of the channel in which they differ most.
int distance(QRgb one, QRgb other) {
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

/// Gives where the text ends.
double paintText(QPainter& painter, QPointF start, const Face& face, int pixels, const QString& text, QRgb ink) {
    painter.fillPath(textOutline(face, pixels, text).translated(start), palette::colour(ink));
    return start.x() + QFontMetricsF(makeFont(face, pixels)).horizontalAdvance(text);
}

} // namespace

Sheet::Sheet(const Generation& generation, const QString& group) {
    add(80, [name = QString(nameOf(generation.language)), group](QPainter& painter, const QRectF& area) {
        const QPointF start(area.left(), area.top() + 54);
        const double end = paintText(painter, start, {interDisplayFace, 700}, 60, name, titleInk);
        paintText(painter, {end + 30, start.y()}, {interDisplayFace, 300}, 60, group, noteInk);
    });
}

void Sheet::add(double height, Paint paint) {
    _blocks.push_back({height, std::move(paint)});
}

void Sheet::addHeading(const QString& text, const QString& note) {
    add(40, [text, note](QPainter& painter, const QRectF& area) {
        const QPointF start(area.left(), area.top() + 36);
        const double end = paintText(painter, start, {interFace, 600}, 30, text, titleInk);
        paintText(painter, {end + 18, start.y()}, {interFace, 400}, 22, note, noteInk);
    });
}

void Sheet::addGrid(std::size_t count, int columns, double rowHeight, PaintCell paint, Paint ground) {
    constexpr double padding = 24;
    const int rows = (static_cast<int>(count) + columns - 1) / columns;
    const double inset = ground ? padding : 0;
    const auto block = [=, paint = std::move(paint), ground = std::move(ground)](QPainter& painter,
                                                                                 const QRectF& area) {
        if (ground)
            ground(painter, area);
        const double cellWidth = (area.width() - 2 * inset) / columns;
        for (std::size_t index = 0; index < count; ++index) {
            const int place = static_cast<int>(index);
            paint(painter,
                  QRectF(area.left() + inset + place % columns * cellWidth,
                         area.top() + inset + place / columns * rowHeight, cellWidth, rowHeight),
                  index);
        }
    };
    add(rows * rowHeight + 2 * inset, block);
}

QImage Sheet::paint() const {
    double height = 2 * margin;
    for (const Block& block : _blocks)
        height += block.height + blockGap;
    QImage image(width, static_cast<int>(height), QImage::Format_RGB32);
    image.fill(palette::colour(pageColour));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    double top = margin;
    for (const Block& block : _blocks) {
        block.paint(painter, QRectF(margin, top, innerWidth, block.height));
        top += block.height + blockGap;
    }
    painter.end();
    return image;
}

void paintName(QPainter& painter, const QRectF& line, const QString& text, QRgb ink) {
    const QFontMetricsF metrics(makeFont(nameFace, namePixels));
    const QString shown = metrics.elidedText(text, Qt::ElideMiddle, line.width() - 8);
    const QPointF start(line.center().x() - metrics.horizontalAdvance(shown) / 2,
                        line.center().y() + metrics.capHeight() / 2);
    paintText(painter, start, nameFace, namePixels, shown, ink);
}

void paintPlate(QPainter& painter, const QRectF& line, const QString& text) {
    constexpr double height = 28;
    constexpr double inset = 10;
    const double length = QFontMetricsF(makeFont(nameFace, namePixels)).horizontalAdvance(text);
    QRectF plate(0, 0, std::min(line.width() - 4, length + 2 * inset), height);
    plate.moveCenter(line.center());
    painter.setBrush(palette::colour(plateColour));
    painter.drawRoundedRect(plate, height / 2, height / 2);
    paintName(painter, plate.adjusted(inset - 4, 0, 4 - inset, 0), text, 0xffffffff);
}

void paintChecker(QPainter& painter, const QRectF& area, bool dark) {
    constexpr double side = 12;
    painter.save();
    QPainterPath shape;
    shape.addRoundedRect(area, 10, 10);
    painter.setClipPath(shape);
    painter.fillRect(area, palette::colour(dark ? darkSquare : lightSquare));
    const QColor other = palette::colour(dark ? darkSquare + 0x070707 : lightSquare + 0x0a0a0a);
    for (int row = 0; row * side < area.height(); ++row) {
        for (int column = row % 2; column * side < area.width(); column += 2)
            painter.fillRect(QRectF(area.left() + column * side, area.top() + row * side, side, side), other);
    }
    painter.restore();
}

void paintFitted(QPainter& painter, const QRectF& place, const QImage& picture) {
    if (picture.isNull())
        return;
    const bool fits = picture.width() <= place.width() && picture.height() <= place.height();
    const QImage shown =
        fits ? picture : picture.scaled(place.size().toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    // On whole pixels, so that it is seen as it is.
    const QPointF corner = place.center() - QPointF(shown.width(), shown.height()) / 2;
    painter.drawImage(corner.toPoint(), shown);
}

void paintCovering(QPainter& painter, const QRectF& place, double radius, const QImage& picture) {
    const QImage large =
        picture.scaled(place.size().toSize(), Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    QBrush brush(large);
    brush.setTransform(
        QTransform::fromTranslate(place.center().x() - large.width() / 2.0, place.center().y() - large.height() / 2.0));
    painter.setBrush(brush);
    painter.drawRoundedRect(place, radius, radius);
    painter.setBrush(Qt::NoBrush);
}

bool isFaint(const QImage& picture) {
    constexpr int leastContrast = 26;
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
    double onLight = 0;
    double onDark = 0;
    int painted = 0;
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x) {
            const QRgb pixel = pixels.pixel(x, y);
            onLight += qAlpha(pixel) / 255.0 * distance(pixel, lightSquare);
            onDark += qAlpha(pixel) / 255.0 * distance(pixel, darkSquare);
            painted += qAlpha(pixel) ? 1 : 0;
        }
    }
    return onLight < leastContrast * painted && onLight < onDark;
}

} // namespace zdt::assets
