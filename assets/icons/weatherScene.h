#pragma once

#include "assets/icons/relief.h"
#include "assets/icons/skyTones.h"

#include <QPointF>

#include <initializer_list>
#include <span>

namespace zdt::assets {

/// A piece of sky in the making: what is added later stands nearer.
class WeatherScene {
public:
    enum class Cloud { fair, storm, night };

    WeatherScene(Sky sky, Language language);

    [[nodiscard]] const Pieces& pieces() const { return _pieces; }

    // weatherSky.cpp
    void addSun(QPointF centre, double radius);
    void addRays(QPointF centre, double radius);
    void addMoonAndStars();
    void addLand(); ///< At the foot: paper hills, dunes or icy ridges.
    void addCloud(Cloud kind, double raise = 0);
    void addFarCloud();

    // weatherFall.cpp
    void addDrops(std::initializer_list<QPointF> tops, double length);
    void addFlakes();
    void addBolt();
    void addMist(double top);
    void addGusts();
    void addDust();
    void addThermometer();
    void addCrystal();
    void addQuestion();

private:
    void add(const QPainterPath& path, const Shade& shade, double lift);
    void addLines(std::span<const char* const> outlines, double width, const Shade& shade);
    void addGlow(QPointF centre, double radius, QRgb colour);
    [[nodiscard]] bool isPaper() const { return _language == Language::paper; }

    Sky _sky;
    Language _language;
    const Air& _air;
    Pieces _pieces;
};

} // namespace zdt::assets
