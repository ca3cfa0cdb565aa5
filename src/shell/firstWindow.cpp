#include "shell/firstWindow.h"

#include <algorithm>

namespace zdt {

WindowSize firstWindowSize(WindowSize available) {
    constexpr int widest = 1280;
    constexpr int narrowest = 1024;
    constexpr int step = 768;
    constexpr int below = 740;
    constexpr int above = 775;
    const int height = available.height < step ? below : available.height == step ? step : above;
    return {std::clamp(available.width, narrowest, widest), height};
}

} // namespace zdt
