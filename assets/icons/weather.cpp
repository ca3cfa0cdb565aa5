#include "assets/icons/weather.h"

#include "assets/art/outline.h"
#include "assets/art/picture.h"
#include "assets/art/shapes.h"
#include "assets/icons/iconPictures.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace zdt::assets {

namespace {

/// What the sky shows, painted in this order; bits of a set.
namespace part {
constexpr std::uint32_t sun = 1;
constexpr std::uint32_t moon = 2;
constexpr std::uint32_t smallSun = 4; ///< At the upper right, behind the cloud.
constexpr std::uint32_t cloud = 8;
constexpr std::uint32_t darkCloud = 16;
constexpr std::uint32_t drops = 32;
constexpr std::uint32_t manyDrops = 64;
constexpr std::uint32_t flakes = 128;
constexpr std::uint32_t lightning = 256;
constexpr std::uint32_t veils = 512; ///< Lines across, of fog.
constexpr std::uint32_t grains = 1024;
constexpr std::uint32_t gusts = 2048;
constexpr std::uint32_t warm = 4096; ///< A thermometer.
constexpr std::uint32_t crystal = 8192;
constexpr std::uint32_t question = 16384;
} // namespace part

struct WeatherRow {
    std::string_view name;
    QRgb skyTop;
    QRgb skyBottom;
    std::uint32_t parts;
};

constexpr auto weatherTable = std::to_array<WeatherRow>({
    {"sunny.png", 0xff4aa3f5, 0xff8fd0ff, part::sun},
    {"hot.png", 0xfff58a3c, 0xfffbc46a, part::sun | part::warm},
    {"cold.png", 0xff5b8fd6, 0xffa9cdf2, part::crystal},
    {"mostlycloudy.png", 0xff5aa2e6, 0xffa5cff2, part::smallSun | part::cloud},
    {"most-cloudy-night.png", 0xff27355c, 0xff4c5f94, part::moon | part::cloud},
    {"cloudy.png", 0xff7f9db8, 0xffb4c6d6, part::cloud},
    {"rain.png", 0xff5f7f9f, 0xff93aec6, part::darkCloud | part::manyDrops},
    {"showers.png", 0xff5c94c8, 0xff9cc4e4, part::smallSun | part::cloud | part::drops},
    {"thundershowers.png", 0xff454f6e, 0xff7682a3, part::darkCloud | part::drops | part::lightning},
    {"snow.png", 0xff86a7c9, 0xffc4d6e6, part::cloud | part::flakes},
    {"fog.png", 0xff94a3ae, 0xffc6cfd5, part::veils},
    {"haze.png", 0xffa8a291, 0xffd2cdbd, part::smallSun | part::veils},
    {"duststorm.png", 0xffb88f54, 0xffdcc08e, part::gusts | part::grains},
    {"windy.png", 0xff54a0a8, 0xff9dd0d2, part::gusts},
    {"unknown.png", 0xff8c96a0, 0xffb9c0c7, part::cloud | part::question},
});

/// All that follows is drawn in a box of 24 by 24.
constexpr double grid = 24;
constexpr QRgb sunColour = 0xffffd54a;
constexpr QRgb darkCloudColour = 0xffd3dae2;
constexpr QRgb dropColour = 0xffbfe3ff;

QPen linePen(QRgb colour, double width) {
    return {palette::colour(colour), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void fill(QPainter& painter, std::string_view outline, QRgb colour) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::colour(colour));
    painter.drawPath(readOutline(outline));
}

void stroke(QPainter& painter, std::string_view outline, QRgb colour, double width) {
    painter.setPen(linePen(colour, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(readOutline(outline));
    painter.setPen(Qt::NoPen);
}

void paintSun(QPainter& painter, QPointF middle, double radius) {
    drawDisc(painter, middle, radius, sunColour);
    painter.save();
    painter.translate(middle);
    painter.setPen(linePen(sunColour, radius * 0.3));
    for (int ray = 0; ray < 8; ++ray) {
        painter.drawLine(QPointF(0, -radius * 1.45), QPointF(0, -radius * 1.8));
        painter.rotate(45);
    }
    painter.restore();
}

void paintSky(QPainter& painter, std::uint32_t parts) {
    if (parts & part::sun)
        paintSun(painter, {12, 12}, 4.4);
    if (parts & part::smallSun)
        paintSun(painter, {15.6, 8.4}, 3.1);
    if (parts & part::moon)
        fill(painter, "M14.5 4 C13.4 8 16 10.8 19.8 10.6 C18 15 10.6 13.6 11.4 8 C11.7 6 13 4.6 14.5 4 Z", 0xfffff0b8);
}

void paintCloud(QPainter& painter, std::uint32_t parts) {
    constexpr std::string_view cloud =
        "M7.2 17 C2.6 17 2.8 11 6.8 10.8 C7.4 6 14.4 5.8 15.4 10.2 C20.4 9.8 20.8 17 16.2 17 Z";
    if (parts & (part::cloud | part::darkCloud))
        fill(painter, cloud, parts & part::darkCloud ? darkCloudColour : palette::paper);
}

void paintFall(QPainter& painter, std::uint32_t parts) {
    if (parts & part::drops)
        stroke(painter, "M8 18.6 L7.4 20 M12.4 18.6 L11.8 20 M16.6 18.6 L16 20", dropColour, 1);
    if (parts & part::manyDrops)
        stroke(painter, "M7 18.4 L6 20.4 M10.2 18.4 L9.2 20.4 M13.4 18.4 L12.4 20.4 M16.6 18.4 L15.6 20.4", dropColour,
               1);
    if (parts & part::flakes)
        fill(painter, "O7.4 19.4 0.8 O11.8 19.9 0.8 O16.2 19.4 0.8", palette::paper);
    if (parts & part::lightning)
        fill(painter, "M13 11.4 L9.6 16.4 H11.8 L10.8 20.4 L15 14.8 H12.6 L14.4 11.4 Z", sunColour);
}

void paintAir(QPainter& painter, std::uint32_t parts) {
    if (parts & part::veils)
        stroke(painter, "M5 10 H15 M7 13 H19 M5 16 H14 M17 16 H18.6 M8 19 H17", palette::paper, 1.3);
    if (parts & part::gusts)
        stroke(painter,
               "M4.4 10 H14 C17.4 10 17.2 5.6 14.4 5.8 M4.4 13 H17.2 C20.8 13 20.6 17.6 17.6 17.4 M4.4 16 H12.4 C15 16 "
               "14.8 19.6 12.4 19.4",
               palette::paper, 1.3);
    if (parts & part::grains)
        fill(painter, "O6.4 7.2 0.7 O9.4 5.6 0.6 O18.4 9.4 0.7 O6.6 19 0.7 O18.6 20 0.6 O9 17.9 0.6", palette::paper);
}

void paintMarks(QPainter& painter, std::uint32_t parts) {
    if (parts & part::warm) {
        fill(painter, "R16.9 5 3.2 11 1.6 O18.5 17 2.6", palette::paper);
        fill(painter, "R17.8 9 1.4 7 0.7", palette::danger);
        fill(painter, "O18.5 17 1.6", palette::danger);
    }
    if (parts & part::crystal)
        stroke(painter,
               "M12 4.6 V19.4 M5.6 8.3 L18.4 15.7 M18.4 8.3 L5.6 15.7 M9.9 5.8 L12 7.6 L14.1 5.8 M9.9 18.2 L12 16.4 "
               "L14.1 18.2 M5.8 11 L8.3 9.9 L8.1 7.2 M18.2 13 L15.7 14.1 L15.9 16.8 M15.9 7.2 L15.7 9.9 L18.2 11 M8.1 "
               "16.8 L8.3 14.1 L5.8 13",
               palette::paper, 1.1);
    if (parts & part::question) {
        stroke(painter, "M9.8 11.2 C9.8 8.4 13.8 8.4 13.8 10.8 C13.8 12.4 11.8 12.2 11.8 13.9", palette::grey, 1);
        fill(painter, "O11.8 15.6 0.7", palette::grey);
    }
}

void paintWeather(QPainter& painter, const QRectF& area, std::uint32_t parts) {
    painter.save();
    painter.translate(area.topLeft());
    painter.scale(area.width() / grid, area.height() / grid);
    paintSky(painter, parts);
    paintCloud(painter, parts);
    paintFall(painter, parts);
    paintAir(painter, parts);
    paintMarks(painter, parts);
    painter.restore();
}

} // namespace

QImage drawWeather(std::string_view name, QSize size, const Generation&) {
    const auto* row =
        std::find_if(weatherTable.begin(), weatherTable.end(), [&](const auto& each) { return each.name == name; });
    if (row == weatherTable.end())
        return {};
    Canvas canvas(size);
    paintTile(canvas.painter(), canvas.area(), palette::colour(row->skyTop), palette::colour(row->skyBottom));
    paintWeather(canvas.painter(), canvas.area(), row->parts);
    return canvas.finish();
}

void paintSunnyCloud(QPainter& painter, const QRectF& area) {
    paintWeather(painter, area, part::smallSun | part::cloud);
}

} // namespace zdt::assets
