#pragma once

#include "assets/skin/easing.h"

#include <QByteArray>
#include <QPointF>
#include <QSize>

#include <array>
#include <string>
#include <string_view>

class QPainter;

/// Moving pictures that show what an interpolator does: a dot runs along its curve, and beside it a picture is animated
/// in the same time.
namespace zdt::assets {

inline constexpr QSize easingSize(288, 148);
/// Frames of a run, both ends included. A run takes 1.6 seconds at 25 frames in a second.
inline constexpr int easingFrames = 41;

/// What an animation changes.
struct EasingEffect {
    std::string_view prefix; ///< Of the pictures' names.
    /// Draws the animated picture with that part of the way done, and below it what doesn't change.
    void (*paint)(QPainter& painter, const EasingCurve& curve, double done);
};

void paintFading(QPainter& painter, const EasingCurve& curve, double done);
void paintTurning(QPainter& painter, const EasingCurve& curve, double done);
void paintGrowing(QPainter& painter, const EasingCurve& curve, double done);
void paintMoving(QPainter& painter, const EasingCurve& curve, double done);

inline constexpr std::array<EasingEffect, 4> easingEffects{{
    {"Alp_", paintFading},
    {"Rot_", paintTurning},
    {"Sca_", paintGrowing},
    {"Tra_", paintMoving},
}};

/// "Alp_bounce.gif", in the skin's folder.
[[nodiscard]] inline std::string easingFile(const EasingEffect& effect, const EasingCurve& curve) {
    return std::string(effect.prefix) + std::string(curve.name) + ".gif";
}

/// Where the dot stands, in pixels of the picture.
[[nodiscard]] QPointF curvePoint(const EasingCurve& curve, double time);

/// An endless GIF. Needs a QGuiApplication; may be called on any thread.
[[nodiscard]] QByteArray easingGif(const EasingEffect& effect, const EasingCurve& curve);

} // namespace zdt::assets
