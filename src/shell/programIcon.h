#pragma once

#include <QIcon>

namespace zdt {

/// The program's sign: a phone on a blue ground. Drawn, so that it is sharp at every size.
[[nodiscard]] QIcon programIcon();

} // namespace zdt
