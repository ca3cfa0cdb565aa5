#include "assets/wallpapers/ramp.h"

#include <span>

namespace zdt::assets {

namespace {

Tint slopeAt(std::span<const Ramp::Stop> stops, std::size_t index) {
    if (index == 0 || index + 1 == stops.size())
        return {};
    const Ramp::Stop& before = stops[index - 1];
    const Ramp::Stop& after = stops[index + 1];
    return (tintOf(after.colour) - tintOf(before.colour)) * (1 / (after.place - before.place));
}

/// Between a stop and the next one: a cubic with the slopes of both.
Tint between(std::span<const Ramp::Stop> stops, std::size_t index, float place) {
    const float width = stops[index + 1].place - stops[index].place;
    const float part = (place - stops[index].place) / width;
    const float rest = 1 - part;
    const Tint curve = mix(tintOf(stops[index].colour), tintOf(stops[index + 1].colour), part * part * (3 - 2 * part));
    return curve + slopeAt(stops, index) * (width * part * rest * rest) -
           slopeAt(stops, index + 1) * (width * part * part * rest);
}

} // namespace

Ramp::Ramp(std::initializer_list<Stop> stops) {
    const std::span all(stops.begin(), stops.size());
    std::size_t index = 0;
    for (int step = 0; step <= steps; ++step) {
        const float place = static_cast<float>(step) / steps;
        while (index + 2 < all.size() && place > all[index + 1].place)
            ++index;
        _tints[static_cast<std::size_t>(step)] =
            between(all, index, std::clamp(place, all[index].place, all[index + 1].place));
    }
}

Tint Ramp::at(float place) const {
    const float scaled = std::clamp(place, 0.F, 1.F) * steps;
    const auto step = std::min(static_cast<std::size_t>(scaled), static_cast<std::size_t>(steps - 1));
    return mix(_tints[step], _tints[step + 1], scaled - static_cast<float>(step));
}

void fillDown(DeepImage& image, const Ramp& ramp) {
    changeEach(image, [&](Tint& tint, float, float y) { tint = ramp.at(y); });
}

} // namespace zdt::assets
