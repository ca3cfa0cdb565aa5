#include "canvas/screens/screenLists.h"

namespace zdt {

std::vector<Screen> systemuiScreens() {
    return {};
}

} // namespace zdt
