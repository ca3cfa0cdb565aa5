#pragma once

#include <QImage>
#include <QList>
#include <QRgb>

#include <array>
#include <cstdint>

namespace zdt::assets {

/// At most 64 opaque colours for pictures that have no more, as those of a GIF.
class FewColours {
public:
    /// The first is kept for "as before", whatever it is.
    FewColours();

    void add(QRgb colour);
    /// `from`, `to` and what an edge between the two consists of.
    /// @param steps between neighbours
    void addBlend(QRgb from, QRgb to, int steps);
    /// To be called when all have been added.
    void settle();

    [[nodiscard]] const QList<QRgb>& colours() const { return _colours; }
    /// The picture with each pixel's nearest colour, never the first, as Indexed8.
    /// @param picture RGB32
    [[nodiscard]] QImage reduce(const QImage& picture) const;

private:
    static constexpr unsigned bits = 6; ///< Of each channel by which a colour is looked up.

    [[nodiscard]] static std::size_t placeOf(QRgb colour);
    [[nodiscard]] std::uint8_t nearest(QRgb colour) const;

    QList<QRgb> _colours;
    std::array<std::uint8_t, 1U << (3 * bits)> _places{};
};

} // namespace zdt::assets
