#pragma once

#include <QRect>

#include <span>
#include <vector>

/// Where the cells of a grid of pictures lie; all measures are logical pixels. Plain numbers.
namespace zdt {

inline constexpr int gridCellWidth = 85;
inline constexpr int gridCellHeight = 146;
inline constexpr int gridRowPitch = 156;
inline constexpr int gridHeadHeight = 41;

/// How many cells stand side by side.
/// @param width of the whole grid
/// @param side the margin at either side
/// @param bar the width of the scroll bar
[[nodiscard]] int gridColumns(int width, int side, int bar);

/// The rows of a group.
[[nodiscard]] int gridRows(int entries, int columns);

/// Where all lies from the top: for each group its head and then its entries.
struct GridLayout {
    std::vector<QRect> places;
    int height = 0;
};

/// @param counts the entries of each group
/// @param width of a head
[[nodiscard]] GridLayout layOutGrid(std::span<const int> counts, int columns, int side, int width);

} // namespace zdt
