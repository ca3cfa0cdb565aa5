#include "canvas/inkMask.h"

#include <QImage>

#include <algorithm>
#include <cstring>

namespace zdt {

namespace {

std::size_t areaOf(const QSize& size) {
    return static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
}

std::vector<std::uint8_t> wholeAlpha(const QImage& picture) {
    std::vector<std::uint8_t> whole(areaOf(picture.size()), 255);
    if (!picture.hasAlphaChannel())
        return whole;
    const QImage alpha = picture.convertToFormat(QImage::Format_Alpha8);
    const auto width = static_cast<std::size_t>(alpha.width());
    for (int y = 0; y < alpha.height(); ++y)
        std::memcpy(whole.data() + static_cast<std::size_t>(y) * width, alpha.constScanLine(y), width);
    return whole;
}

bool isAll(const std::uint8_t* bytes, std::size_t count, std::uint8_t value) {
    return std::all_of(bytes, bytes + count, [value](std::uint8_t byte) { return byte == value; });
}

} // namespace

InkMask::InkMask(const QSize& size, const std::vector<std::uint8_t>& whole)
    : _size(size) {
    findInk(whole);
    findCore();
}

InkMask InkMask::ofImage(const QImage& picture) {
    return picture.isNull() ? InkMask() : InkMask(picture.size(), wholeAlpha(picture));
}

InkMask InkMask::ofAlphas(const QSize& size, const std::vector<std::uint8_t>& alphas) {
    return size.isEmpty() || alphas.size() != areaOf(size) ? InkMask() : InkMask(size, alphas);
}

void InkMask::findInk(const std::vector<std::uint8_t>& whole) {
    const auto width = static_cast<std::size_t>(_size.width());
    int left = _size.width();
    int right = -1;
    int top = _size.height();
    int bottom = -1;
    for (int y = 0; y < _size.height(); ++y) {
        const std::uint8_t* row = whole.data() + static_cast<std::size_t>(y) * width;
        const std::uint8_t* end = row + width;
        const std::uint8_t* first = std::find_if(row, end, [](std::uint8_t alpha) { return alpha != 0; });
        if (first == end)
            continue;
        const std::uint8_t* last = end - 1;
        while (*last == 0)
            --last;
        left = std::min(left, static_cast<int>(first - row));
        right = std::max(right, static_cast<int>(last - row));
        top = std::min(top, y);
        bottom = y;
    }
    if (right < 0)
        return;
    _ink = QRect(QPoint(left, top), QPoint(right, bottom));
    const auto inkWidth = static_cast<std::size_t>(_ink.width());
    _alpha.resize(areaOf(_ink.size()));
    for (int y = top; y <= bottom; ++y)
        std::memcpy(_alpha.data() + static_cast<std::size_t>(y - top) * inkWidth,
                    whole.data() + static_cast<std::size_t>(y) * width + static_cast<std::size_t>(left), inkWidth);
}

void InkMask::findCore() {
    int start = 0;
    int best = 0;
    for (int y = 0; y < _ink.height(); ++y) {
        if (!isAll(row(_ink.top() + y), static_cast<std::size_t>(_ink.width()), 255)) {
            start = y + 1;
        } else if (y + 1 - start > best) {
            best = y + 1 - start;
            _core = QRect(_ink.left(), _ink.top() + start, _ink.width(), best);
        }
    }
}

std::size_t InkMask::pointCount() const {
    return static_cast<std::size_t>(
        std::count_if(_alpha.begin(), _alpha.end(), [](std::uint8_t alpha) { return alpha != 0; }));
}

PixelList InkMask::points() const {
    PixelList list;
    visitPoints([&list](const CFileImagePoint& point) { list.push_back(point); });
    return list;
}

const std::uint8_t* InkMask::row(int y) const {
    return _alpha.data() + static_cast<std::size_t>(y - _ink.top()) * static_cast<std::size_t>(_ink.width());
}

int InkMask::alphaAt(const QPoint& point) const {
    return _ink.contains(point) ? row(point.y())[point.x() - _ink.left()] : 0;
}

InkMask InkMask::scaledTo(const QSize& size) const {
    std::vector<std::uint8_t> whole(areaOf(_size), 0);
    for (int y = _ink.top(); y <= _ink.bottom(); ++y)
        std::memcpy(whole.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(_size.width()) +
                        static_cast<std::size_t>(_ink.left()),
                    row(y), static_cast<std::size_t>(_ink.width()));
    const QImage alpha(whole.data(), _size.width(), _size.height(), _size.width(), QImage::Format_Alpha8);
    return ofImage(alpha.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

} // namespace zdt
