#include "canvas/frameScaler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace zdt {

namespace {

/// What the weights of a pixel sum up to. Rows have bytes of weights, so that their sums fit 16 bits.
constexpr std::uint32_t allRows = 1U << 8;
constexpr std::uint32_t allColumns = 1U << 12;
constexpr std::size_t channels = 4;

/// How much of a source pixel belongs to a target pixel that covers [start, end) of the source.
double boxWeight(int pixel, double start, double end) {
    return std::max(0.0, std::min(end, pixel + 1.0) - std::max(start, static_cast<double>(pixel)));
}

double triangleWeight(int pixel, double centre) {
    return std::max(0.0, 1.0 - std::abs(pixel + 0.5 - centre));
}

} // namespace

FrameScaler::FrameScaler(const QSize& from, const QSize& to)
    : _from(from)
    , _to(to)
    , _across(axisOf(from.width(), to.width(), allColumns))
    , _down(axisOf(from.height(), to.height(), allRows)) {}

FrameScaler::Axis FrameScaler::axisOf(int from, int to, std::uint32_t all) {
    Axis axis;
    const double step = static_cast<double>(from) / to;
    const bool isSmaller = step >= 1;
    for (int i = 0; i < to; ++i) {
        const double start = isSmaller ? i * step : (i + 0.5) * step - 1;
        const double end = isSmaller ? (i + 1) * step : (i + 0.5) * step + 1;
        const int first = std::clamp(static_cast<int>(std::floor(start)), 0, from - 1);
        const int last = std::clamp(static_cast<int>(std::ceil(end)) - 1, first, from - 1);
        double sum = 0;
        std::vector<double> weights;
        for (int pixel = first; pixel <= last; ++pixel) {
            weights.push_back(isSmaller ? boxWeight(pixel, start, end) : triangleWeight(pixel, (i + 0.5) * step));
            sum += weights.back();
        }
        axis.shares.push_back({first, last - first + 1, axis.weights.size()});
        std::uint32_t left = all;
        for (const double weight : weights) {
            const auto rounded = std::min(left, static_cast<std::uint32_t>(std::lround(weight / sum * all)));
            axis.weights.push_back(rounded);
            left -= rounded;
        }
        // Rounding must not make a plain colour darker.
        axis.weights[axis.weights.size() - weights.size() / 2 - 1] += left;
    }
    return axis;
}

QRect FrameScaler::reachOf(const QRect& piece) const {
    if (piece.isEmpty() || _to.isEmpty())
        return {};
    const auto first = [](int at, int from, int to) {
        return static_cast<int>((std::int64_t{at} - 1) * to / from) - 1;
    };
    const auto last = [](int at, int from, int to) { return static_cast<int>((std::int64_t{at} + 2) * to / from) + 1; };
    const QPoint topLeft(first(piece.left(), _from.width(), _to.width()),
                         first(piece.top(), _from.height(), _to.height()));
    const QPoint bottomRight(last(piece.right(), _from.width(), _to.width()),
                             last(piece.bottom(), _from.height(), _to.height()));
    return QRect(topLeft, bottomRight) & QRect(QPoint(), _to);
}

/// Sums the rows of a share, from column `left` to before `right` of the source.
void FrameScaler::sumRows(const QImage& source, const Share& rows, int left, int right) {
    const std::size_t begin = static_cast<std::size_t>(left) * channels;
    const std::size_t end = static_cast<std::size_t>(right) * channels;
    std::uint16_t* sums = _sums.data();
    std::fill(sums + begin, sums + end, std::uint16_t{0});
    for (int i = 0; i < rows.count; ++i) {
        const uchar* bytes = source.constScanLine(rows.first + i);
        const auto weight = static_cast<std::uint16_t>(_down.weights[rows.weights + static_cast<std::size_t>(i)]);
        for (std::size_t at = begin; at < end; ++at)
            sums[at] = static_cast<std::uint16_t>(sums[at] + static_cast<std::uint16_t>(bytes[at] * weight));
    }
}

void FrameScaler::scale(const QImage& source, QImage& target, const QRect& area) {
    const QRect wanted = area & QRect(QPoint(), _to);
    if (wanted.isEmpty())
        return;
    constexpr int shift = 20; // Of both weights.
    constexpr std::uint32_t half = 1U << (shift - 1);
    _sums.resize(static_cast<std::size_t>(_from.width()) * channels);
    const Share& firstColumn = _across.shares[static_cast<std::size_t>(wanted.left())];
    const Share& lastColumn = _across.shares[static_cast<std::size_t>(wanted.right())];
    for (int y = wanted.top(); y <= wanted.bottom(); ++y) {
        sumRows(source, _down.shares[static_cast<std::size_t>(y)], firstColumn.first,
                lastColumn.first + lastColumn.count);
        uchar* pixel = target.scanLine(y) + static_cast<std::size_t>(wanted.left()) * channels;
        for (int x = wanted.left(); x <= wanted.right(); ++x, pixel += channels) {
            const Share& share = _across.shares[static_cast<std::size_t>(x)];
            std::array<std::uint32_t, channels> sums{};
            for (int i = 0; i < share.count; ++i) {
                const std::uint32_t weight = _across.weights[share.weights + static_cast<std::size_t>(i)];
                const std::uint16_t* column = &_sums[static_cast<std::size_t>(share.first + i) * channels];
                for (std::size_t channel = 0; channel < channels; ++channel)
                    sums[channel] += column[channel] * weight;
            }
            for (std::size_t channel = 0; channel < channels; ++channel)
                pixel[channel] = static_cast<uchar>((sums[channel] + half) >> shift);
        }
    }
}

} // namespace zdt
