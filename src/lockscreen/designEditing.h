#pragma once

#include "lockscreen/lockDesign.h"

/// What the operations of a design share.
namespace zdt {

/// Whether an element may lie there: sides of no negative length, within 100,000 pixels of the corner.
[[nodiscard]] bool isAllowed(const DesignRect& rect);

/// Sets the place of an element, each attribute in its own form.
void place(AmazingChild& element, const DesignRect& rect, std::uint32_t height);

} // namespace zdt
