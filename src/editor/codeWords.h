#pragma once

#include <QString>

namespace zdt {

/// The key of the text that says a code of the store; that of -3, which means that nothing could be written, for a code
/// that has none.
[[nodiscard]] QString codeKey(int code);

} // namespace zdt
