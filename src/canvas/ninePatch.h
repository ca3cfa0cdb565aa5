#pragma once

#include <QImage>
#include <QSize>

#include <string>
#include <string_view>
#include <vector>

namespace zdt {

/// Pixels in a row that are drawn larger where a picture must fill more space.
struct StretchRun {
    int start = 0;
    int length = 0;

    friend bool operator==(const StretchRun&, const StretchRun&) = default;
};

/// A picture that is stretched in some of its parts only. The runs are sorted, apart, and lie in the picture; an axis
/// without any is stretched as a whole.
struct NinePatch {
    QImage picture; ///< Premultiplied or opaque, without guide lines.
    std::vector<StretchRun> across;
    std::vector<StretchRun> down;
};

/// Whether a file's name ends in ".9.png".
[[nodiscard]] bool hasNinePatchName(std::string_view file);

/// A nine-patch as it was drawn, with its guide lines around it, or as it was compiled. One without either, or with
/// damaged ones, is stretched as a whole. A null picture if the file can't be read.
[[nodiscard]] NinePatch readNinePatch(const std::string& file);

/// The picture in a size; corners keep theirs unless there is too little place for them. Null for an empty one.
[[nodiscard]] QImage stretched(const NinePatch& patch, const QSize& size);

} // namespace zdt
