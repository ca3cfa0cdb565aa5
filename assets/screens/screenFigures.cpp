#include "assets/screens/screenFigures.h"

#include "assets/art/palette.h"
#include "assets/art/shapes.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace zdt::assets {

namespace {

template <typename Row, std::size_t count>
const Row& rowOf(const std::array<Row, count>& rows, int variant) {
    return rows[static_cast<std::size_t>(variant) % count];
}

enum class Hair { cropped, long_, bun, curly };

struct Person {
    QRgb top; ///< Of the disc's gradient.
    QRgb bottom;
    QRgb skin;
    QRgb hair;
    QRgb clothes;
    Hair style;
};

constexpr std::array<Person, 8> people{{
    {0xff8ec5fc, 0xff4a86e8, 0xfff6d3b8, 0xff3b2c2a, 0xfff4f7fb, Hair::cropped},
    {0xfff9c6a5, 0xffee8f6c, 0xfffbdcc4, 0xff5b3426, 0xff7a4f9a, Hair::long_},
    {0xff9adfc2, 0xff3fae8c, 0xffe5b48f, 0xff231f20, 0xfff2c14e, Hair::bun},
    {0xffc9b8f5, 0xff8468d6, 0xff9c6b4a, 0xff1d1a1c, 0xffe9eef7, Hair::curly},
    {0xfff5b7c8, 0xffd96b8f, 0xfff8d9c2, 0xff2a2323, 0xff355c8a, Hair::long_},
    {0xffb5dcea, 0xff5aa2bf, 0xfff1c9a8, 0xffb9bcc2, 0xff4d5b6b, Hair::cropped},
    {0xfffbe0a0, 0xffe3ad3b, 0xff7d5138, 0xff17120f, 0xff2f8f83, Hair::cropped},
    {0xffc3d4e6, 0xff7f97b5, 0xffffe0cc, 0xff8a5a35, 0xffd86a5b, Hair::bun},
}};

struct Landscape {
    QRgb sky;
    QRgb horizon;
    QRgb sun; ///< Clear for none.
    QRgb far;
    QRgb middle;
    QRgb near;
};

constexpr std::array<Landscape, 5> landscapes{{
    {0xff7db8ea, 0xffdcecf6, 0xccffffff, 0xff93b4c8, 0xff5f8f94, 0xff35686a},
    {0xff42407c, 0xfff3a683, 0xe6ffe3b3, 0xff8e6a8f, 0xff5c4a78, 0xff2f2a52},
    {0xff0e2a47, 0xff1d6e78, 0x00000000, 0xff1a4a5c, 0xff143a4c, 0xff0c2638},
    {0xfff7d9a8, 0xfffdf3e0, 0xffffffff, 0xffd9bf8c, 0xffb79a62, 0xff8a7446},
    {0xffa8d8cf, 0xffeef7f0, 0x99ffffff, 0xff9cc7a8, 0xff6ba47a, 0xff3f7d57},
}};

/// In hundredths of the disc's side.
class Figure {
public:
    Figure(QPainter& painter, const QRectF& area, const Person& person)
        : _painter(painter)
        , _person(person) {
        _painter.translate(area.topLeft());
        _painter.scale(area.width() / 100, area.height() / 100);
        QPainterPath disc;
        disc.addEllipse(QRectF(0, 0, 100, 100));
        _painter.setClipPath(disc);
        _painter.setPen(Qt::NoPen);
    }

    void paint() {
        paintHairBehind();
        shape(_person.clothes, [](QPainterPath& path) { path.addRoundedRect(QRectF(18, 75, 64, 60), 28, 28); });
        const QColor shade = palette::colour(_person.skin).darker(112);
        shape(shade.rgba(), [](QPainterPath& path) { path.addRoundedRect(QRectF(42, 56, 16, 26), 8, 8); });
        shape(_person.skin, [](QPainterPath& path) { path.addRoundedRect(QRectF(34, 26, 32, 41), 16, 18); });
        paintHairInFront();
    }

private:
    template <typename Build>
    void shape(QRgb colour, const Build& build) {
        QPainterPath path;
        build(path);
        _painter.fillPath(path, palette::colour(colour));
    }

    void paintHairBehind() {
        switch (_person.style) {
        case Hair::long_:
            shape(_person.hair, [](QPainterPath& path) { path.addRoundedRect(QRectF(28, 18, 44, 64), 22, 24); });
            return;
        case Hair::bun:
            shape(_person.hair, [](QPainterPath& path) { path.addEllipse(QRectF(40, 6, 20, 20)); });
            return;
        case Hair::curly:
            shape(_person.hair, [](QPainterPath& path) { path.addEllipse(QRectF(26, 13, 48, 46)); });
            return;
        case Hair::cropped:
            return;
        }
    }

    /// From ear to ear over the forehead.
    void paintHairInFront() {
        shape(_person.hair, [](QPainterPath& path) {
            path.moveTo(32, 44);
            path.cubicTo(30, 24, 40, 18, 50, 18);
            path.cubicTo(62, 18, 70, 26, 68, 44);
            path.cubicTo(66, 38, 63, 35, 58, 34);
            path.cubicTo(50, 33, 40, 35, 36, 37);
            path.cubicTo(34, 39, 33, 41, 32, 44);
        });
    }

    QPainter& _painter;
    const Person& _person;
};

/// Hills whose crest is a wave, in parts of the area.
void paintHills(QPainter& painter, const QRectF& area, double crest, double swing, double phase, QRgb colour) {
    constexpr int steps = 48;
    QPainterPath path(area.bottomLeft());
    for (int step = 0; step <= steps; ++step) {
        const double x = static_cast<double>(step) / steps;
        const double wave = std::sin(x * 5.2 + phase) * 0.6 + std::sin(x * 11.7 + phase * 2) * 0.25;
        path.lineTo(area.left() + x * area.width(), area.top() + (crest - swing * wave) * area.height());
    }
    path.lineTo(area.bottomRight());
    painter.fillPath(path, palette::colour(colour));
}

} // namespace

void paintPortraitDisc(QPainter& painter, const QRectF& area, int variant) {
    const Person& person = rowOf(people, variant);
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, palette::colour(person.top));
    gradient.setColorAt(1, palette::colour(person.bottom));
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawEllipse(area);
}

void paintPortrait(QPainter& painter, const QRectF& area, int variant) {
    paintPortraitDisc(painter, area, variant);
    painter.save();
    Figure(painter, area, rowOf(people, variant)).paint();
    painter.restore();
}

void paintPhoto(QPainter& painter, const QRectF& area, double radius, int variant) {
    const Landscape& land = rowOf(landscapes, variant);
    QPainterPath frame;
    frame.addRoundedRect(area, radius, radius);
    QLinearGradient sky(area.topLeft(), area.bottomLeft());
    sky.setColorAt(0, palette::colour(land.sky));
    sky.setColorAt(0.7, palette::colour(land.horizon));
    painter.save();
    painter.setClipPath(frame);
    painter.fillRect(area, sky);
    const double sun = std::min(area.width(), area.height()) * 0.11;
    drawDisc(painter, {area.left() + area.width() * 0.7, area.top() + area.height() * 0.34}, sun, land.sun);
    const double phase = variant * 1.7;
    paintHills(painter, area, 0.58, 0.11, phase, land.far);
    paintHills(painter, area, 0.70, 0.09, phase + 2.1, land.middle);
    paintHills(painter, area, 0.85, 0.07, phase + 4.4, land.near);
    painter.restore();
}

} // namespace zdt::assets
