#pragma once

namespace zdt {

/// A size in logical pixels.
struct WindowSize {
    int width = 0;
    int height = 0;

    friend bool operator==(const WindowSize&, const WindowSize&) = default;
};

/// The first size of the window on a screen with that much room. The height goes by steps and is no clamp: every screen
/// higher than 768 gives 775.
[[nodiscard]] WindowSize firstWindowSize(WindowSize available);

} // namespace zdt
