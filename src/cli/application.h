#pragma once

#include <iosfwd>

namespace zdt {

/// The program `zdt`: results on `out`, a refusal as one line on `err`.
/// @return 0 done, 1 refused or failed, 2 wrong usage
[[nodiscard]] int runZdt(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

} // namespace zdt
