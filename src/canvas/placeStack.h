#pragma once

#include "canvas/previewPart.h"

#include <QPoint>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace zdt {

class PreviewComposition;

/// Which of the parts that lie upon each other a click means.
class PlaceStack {
public:
    /// The part that a click at `click`, in pixels of the view, picks: the topmost one with a key, or when it comes at
    /// nearly the same place as the last one, the next below with another key; behind the lowest the topmost again.
    /// `at` is the same point of the frame.
    [[nodiscard]] std::optional<std::size_t> pick(PreviewComposition& composition, const QPoint& click,
                                                  const QPoint& at);
    /// Whether a point is nearly that of the last click.
    [[nodiscard]] bool isAtClick(const QPoint& point) const;
    void reset() { _click.reset(); }

private:
    std::optional<QPoint> _click;
    std::vector<std::string> _keys; ///< Of the stack at the last click.
    std::size_t _depth = 0;
};

/// The topmost parts of each key at a point of the frame, the topmost key first. A small part, such as a text, is also
/// meant by a point between its strokes and a little beside them.
[[nodiscard]] std::vector<std::size_t> keyedPartsAt(PreviewComposition& composition, const QPoint& at);

/// For the keyboard: of each key the visible part that is read first, from the top left to the bottom right.
[[nodiscard]] std::vector<std::size_t> walkOf(PreviewComposition& composition);

} // namespace zdt
