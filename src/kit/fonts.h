#pragma once

#include <QFont>

namespace zdt {

/// The face of the window, Inter and for Chinese Noto Sans CJK SC; `pixels` is the logical size.
[[nodiscard]] QFont textFont(int pixels, QFont::Weight weight = QFont::Normal);

/// The face for hex values, keys, file names, sizes and times.
[[nodiscard]] QFont monoFont(int pixels);

/// The face whose characters are `Icon`.
[[nodiscard]] QFont iconFont(int pixels);

} // namespace zdt
