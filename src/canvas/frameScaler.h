#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

#include <cstdint>
#include <vector>

namespace zdt {

/// An image scaled to a size, piece by piece: a piece that is scaled anew fits what stands around it to the pixel.
/// Where it becomes smaller each pixel is the mean of all that it stands for, where it becomes larger it is bilinear.
class FrameScaler {
public:
    FrameScaler() = default;
    FrameScaler(const QSize& from, const QSize& to);

    [[nodiscard]] const QSize& target() const { return _to; }

    /// What of the target a piece of the source has a part in.
    [[nodiscard]] QRect reachOf(const QRect& piece) const;

    /// Scales what belongs into `area` of the target. Both images have 32 bits a pixel, and the sizes given before.
    void scale(const QImage& source, QImage& target, const QRect& area);

private:
    /// For a pixel of the target: where its share of the source begins, and the weights of it.
    struct Share {
        int first = 0;
        int count = 0;
        std::size_t weights = 0; ///< Where they begin.
    };
    struct Axis {
        std::vector<Share> shares;
        std::vector<std::uint32_t> weights;
    };

    [[nodiscard]] static Axis axisOf(int from, int to, std::uint32_t all);
    void sumRows(const QImage& source, const Share& rows, int left, int right);

    QSize _from;
    QSize _to;
    Axis _across;
    Axis _down;
    std::vector<std::uint16_t> _sums; ///< The channels of one row of the source's columns, 8 bits behind the point.
};

} // namespace zdt
