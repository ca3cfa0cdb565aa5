#include "canvas/tint.h"

#include <cstddef>

namespace zdt {

TintTable tintTable(QRgb colour) {
    TintTable table{};
    for (std::size_t alpha = 0; alpha < table.size(); ++alpha) {
        const int result = static_cast<int>(alpha) * qAlpha(colour) / 255;
        table[alpha] = qPremultiply(qRgba(qRed(colour), qGreen(colour), qBlue(colour), result));
    }
    return table;
}

} // namespace zdt
