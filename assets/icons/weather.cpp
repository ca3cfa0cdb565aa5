#include "assets/icons/weather.h"

#include "assets/art/picture.h"
#include "assets/icons/tile.h"
#include "assets/icons/weatherScene.h"

#include <algorithm>
#include <array>

namespace zdt::assets {

namespace {

using Scene = WeatherScene;
using Compose = void (*)(Scene& scene);

struct WeatherRow {
    std::string_view name;
    Sky sky;
    Compose far;  ///< Behind the land; null for nothing.
    Compose near; ///< Before it.
};

/// How far a cloud goes up if something falls from it.
constexpr double raise = 26;

void addSunAtCorner(Scene& scene) {
    scene.addSun({122, 66}, 29);
}

void addMiddleSun(Scene& scene) {
    scene.addSun({96, 88}, 34);
    scene.addRays({96, 88}, 34);
}

constexpr auto weatherTable = std::to_array<WeatherRow>({
    {"cloudy.png", Sky::grey, nullptr,
     [](Scene& scene) {
         scene.addFarCloud();
         scene.addCloud(Scene::Cloud::fair);
     }},
    {"cold.png", Sky::cold, nullptr, [](Scene& scene) { scene.addCrystal(); }},
    {"duststorm.png", Sky::dust, nullptr, [](Scene& scene) { scene.addDust(); }},
    {"fog.png", Sky::fog, nullptr,
     [](Scene& scene) {
         scene.addCloud(Scene::Cloud::fair, raise);
         scene.addMist(128);
     }},
    {"haze.png", Sky::haze,
     [](Scene& scene) {
         scene.addSun({96, 86}, 36);
     },
     [](Scene& scene) { scene.addMist(112); }},
    {"hot.png", Sky::hot,
     [](Scene& scene) {
         scene.addSun({84, 88}, 34);
         scene.addRays({84, 88}, 34);
     },
     [](Scene& scene) { scene.addThermometer(); }},
    {"most-cloudy-night.png", Sky::night, [](Scene& scene) { scene.addMoonAndStars(); },
     [](Scene& scene) { scene.addCloud(Scene::Cloud::night, -8); }},
    {"mostlycloudy.png", Sky::clear, addSunAtCorner, [](Scene& scene) { scene.addCloud(Scene::Cloud::fair); }},
    {"rain.png", Sky::rain, nullptr,
     [](Scene& scene) {
         scene.addCloud(Scene::Cloud::storm, raise);
         scene.addDrops({{62, 130}, {87, 132}, {112, 132}, {137, 130}, {74, 152}, {99, 154}, {124, 152}}, 14);
     }},
    {"showers.png", Sky::clear, addSunAtCorner,
     [](Scene& scene) {
         scene.addCloud(Scene::Cloud::fair, raise - 8);
         scene.addDrops({{66, 138}, {97, 142}, {128, 138}}, 20);
     }},
    {"snow.png", Sky::cold, nullptr,
     [](Scene& scene) {
         scene.addCloud(Scene::Cloud::fair, raise);
         scene.addFlakes();
     }},
    {"sunny.png", Sky::clear, addMiddleSun, nullptr},
    {"thundershowers.png", Sky::storm, nullptr,
     [](Scene& scene) {
         scene.addCloud(Scene::Cloud::storm, raise);
         scene.addDrops({{64, 131}, {130, 131}}, 20);
         scene.addBolt();
     }},
    {"unknown.png", Sky::unknown, nullptr,
     [](Scene& scene) {
         scene.addCloud(Scene::Cloud::fair);
         scene.addQuestion();
     }},
    {"windy.png", Sky::wind, nullptr, [](Scene& scene) { scene.addGusts(); }},
});

void paintScene(QPainter& painter, const WeatherRow& row, const Material& material) {
    Scene scene(row.sky, material.language());
    if (row.far)
        row.far(scene);
    scene.addLand();
    if (row.near)
        row.near(scene);
    const QPainterPath shape = tileShape(material.language());
    painter.fillPath(shape, shaded(skyTone(row.sky, material.language()), 10, 182));
    painter.save();
    painter.setClipPath(shape);
    paintPieces(painter, scene.pieces(), material);
    painter.restore();
}

} // namespace

QImage drawWeather(std::string_view name, QSize size, const Generation& generation) {
    const auto* row = std::ranges::find(weatherTable, name, &WeatherRow::name);
    if (row == weatherTable.end())
        return {};
    Canvas canvas(size);
    QPainter& painter = canvas.painter();
    painter.scale(size.width() / iconSide, size.height() / iconSide);
    const Material material(generation, Hue::steel);
    paintScene(painter, *row, material);
    paintBorder(painter, material);
    return canvas.finish();
}

} // namespace zdt::assets
