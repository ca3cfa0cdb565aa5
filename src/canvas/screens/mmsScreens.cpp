#include "canvas/screens/screenLists.h"

namespace zdt {

std::vector<Screen> mmsScreens() {
    return {};
}

} // namespace zdt
