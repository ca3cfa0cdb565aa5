#include "editor/pictureGrid.h"

#include <algorithm>

namespace zdt {

int gridColumns(int width, int side, int bar) {
    return std::max(1, (width - 2 * side - bar) / gridCellWidth);
}

int gridRows(int entries, int columns) {
    return (entries + columns - 1) / columns;
}

GridLayout layOutGrid(std::span<const int> counts, int columns, int side, int width) {
    GridLayout layout;
    for (const int entries : counts) {
        layout.places.emplace_back(0, layout.height, width, gridHeadHeight);
        const int top = layout.height + gridHeadHeight;
        for (int at = 0; at < entries; ++at)
            layout.places.emplace_back(side + at % columns * gridCellWidth, top + at / columns * gridRowPitch,
                                       gridCellWidth, gridCellHeight);
        layout.height += gridHeadHeight + gridRows(entries, columns) * gridRowPitch;
    }
    return layout;
}

} // namespace zdt
