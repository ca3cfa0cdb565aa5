#pragma once

#include <QSize>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace zdt::assets {

/// A value for each pixel.
template <class Value>
class Field {
public:
    explicit Field(QSize size, const Value& value = {})
        : _size(size)
        , _values(static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height()), value) {}

    [[nodiscard]] QSize size() const { return _size; }
    [[nodiscard]] int width() const { return _size.width(); }
    [[nodiscard]] int height() const { return _size.height(); }
    [[nodiscard]] Value* row(int y) { return _values.data() + static_cast<std::ptrdiff_t>(y) * _size.width(); }
    [[nodiscard]] const Value* row(int y) const {
        return _values.data() + static_cast<std::ptrdiff_t>(y) * _size.width();
    }
    [[nodiscard]] Value& at(int x, int y) { return row(y)[x]; }
    [[nodiscard]] const Value& at(int x, int y) const { return row(y)[x]; }
    /// The next value there is, for places outside.
    [[nodiscard]] const Value& nearest(int x, int y) const {
        return at(std::clamp(x, 0, width() - 1), std::clamp(y, 0, height() - 1));
    }

private:
    QSize _size;
    std::vector<Value> _values;
};

using Mask = Field<float>; ///< How much of each pixel a shape covers, 0 to 1.

} // namespace zdt::assets
