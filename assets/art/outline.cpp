#include "assets/art/outline.h"

#include "support/assertion.h"

#include <array>
#include <charconv>

namespace zdt::assets {

namespace {

constexpr const char* source = "outline";

class OutlineReader {
public:
    explicit OutlineReader(std::string_view text)
        : _rest(text) {}

    QPainterPath read() {
        for (skipBlanks(); !_rest.empty(); skipBlanks()) {
            const char letter = _rest.front();
            _rest.remove_prefix(1);
            add(letter);
        }
        return _path;
    }

private:
    void skipBlanks() {
        while (_rest.starts_with(' '))
            _rest.remove_prefix(1);
    }

    template <std::size_t count>
    std::array<double, count> numbers() {
        std::array<double, count> values{};
        for (double& value : values) {
            skipBlanks();
            const auto [end, error] = std::from_chars(_rest.data(), _rest.data() + _rest.size(), value);
            ZDT_ASSERT(error == std::errc(), source);
            _rest.remove_prefix(static_cast<std::size_t>(end - _rest.data()));
        }
        return values;
    }

    void add(char letter) {
        const QPointF here = _path.currentPosition();
        if (letter == 'M') {
            const auto [x, y] = numbers<2>();
            _path.moveTo(x, y);
        } else if (letter == 'L') {
            const auto [x, y] = numbers<2>();
            _path.lineTo(x, y);
        } else if (letter == 'H') {
            _path.lineTo(numbers<1>()[0], here.y());
        } else if (letter == 'V') {
            _path.lineTo(here.x(), numbers<1>()[0]);
        } else if (letter == 'Z') {
            _path.closeSubpath();
        } else {
            addRound(letter);
        }
    }

    void addRound(char letter) {
        if (letter == 'Q') {
            const auto [cx, cy, x, y] = numbers<4>();
            _path.quadTo(cx, cy, x, y);
        } else if (letter == 'C') {
            const auto [ax, ay, bx, by, x, y] = numbers<6>();
            _path.cubicTo(ax, ay, bx, by, x, y);
        } else if (letter == 'O') {
            const auto [x, y, radius] = numbers<3>();
            _path.addEllipse(QPointF(x, y), radius, radius);
        } else if (letter == 'R') {
            const auto [x, y, width, height, radius] = numbers<5>();
            _path.addRoundedRect(QRectF(x, y, width, height), radius, radius);
        } else {
            const bool known = letter == 'A';
            ZDT_ASSERT(known, source);
            const auto [x, y, radius, from, by] = numbers<5>();
            const QRectF circle(x - radius, y - radius, 2 * radius, 2 * radius);
            _path.arcMoveTo(circle, from);
            _path.arcTo(circle, from, by);
        }
    }

    std::string_view _rest;
    QPainterPath _path;
};

} // namespace

QPainterPath readOutline(std::string_view text) {
    return OutlineReader(text).read();
}

} // namespace zdt::assets
