#include "canvas/screens/screenLists.h"

namespace zdt {

std::vector<Screen> launcherScreens() {
    return {};
}

} // namespace zdt
