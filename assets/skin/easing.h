#pragma once

#include <array>
#include <string_view>

/// How a phone's animations gather and lose speed: its interpolators. Each takes the part of the time that has passed,
/// 0 to 1, and gives the part of the way that is done.
namespace zdt::assets {

/// cos((t + 1) pi) / 2 + 1 / 2.
[[nodiscard]] double accelerateDecelerate(double time);
/// t^2.
[[nodiscard]] double accelerate(double time);
/// t^2 (3 t - 2): goes back first, by 0.13 at most.
[[nodiscard]] double anticipate(double time);
/// Back first, then too far: t^2 (4 t - 3) / 2 at twice the time, and the same from the other end.
[[nodiscard]] double anticipateOvershoot(double time);
/// Falls and hops three times, each a parabola 8 t^2 that is as steep as the fall.
[[nodiscard]] double bounce(double time);
/// sin(2 pi t): there, back past the start, and back again. Lies between -1 and 1.
[[nodiscard]] double cycle(double time);
/// 1 - (1 - t)^2.
[[nodiscard]] double decelerate(double time);
/// t.
[[nodiscard]] double linear(double time);
/// (t - 1)^2 (3 (t - 1) + 2) + 1: goes too far, by 0.13 at most.
[[nodiscard]] double overshoot(double time);

struct EasingCurve {
    std::string_view name; ///< As a lock screen's document and the pictures' names have it.
    double (*at)(double time);
    double lowest = 0; ///< Of the two values between which the curve swings or which it leads from and to.
};

/// In the order in which an author is offered them.
inline constexpr std::array<EasingCurve, 9> easingCurves{{
    {"accelerateDecelerate", accelerateDecelerate},
    {"accelerate", accelerate},
    {"anticipate", anticipate},
    {"anticipateOvershoot", anticipateOvershoot},
    {"bounce", bounce},
    {"cycle", cycle, -1},
    {"decelerate", decelerate},
    {"linear", linear},
    {"overshoot", overshoot},
}};

} // namespace zdt::assets
