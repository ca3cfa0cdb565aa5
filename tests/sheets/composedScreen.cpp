#include "sheets/composedScreen.h"

#include "assets/screenArt.h"
#include "canvas/screens/screenTable.h"
#include "model/keyPath.h"
#include "model/textResNode.h"

#include <QColor>
#include <QPainter>

#include <map>
#include <string>
#include <utility>

namespace zdt::test {

namespace {

using Edges = std::pair<int, int>; ///< Pixels from each end that don't stretch.

/// The words in a key that choose its colour in a dark theme, the first that is found.
constexpr std::pair<std::string_view, QRgb> darkColours[] = {
    {"contacts/dial/background", 0xff152640},
    {"send message text", 0xff04281c},
    {"send bubble", 0xff2bd9a0},
    {"highlight", 0xff2bd9a0},
    {"warning", 0xffff6b6b},
    {"text shadow", 0x80000000},
    {"secondary", 0x99eaf4ff},
    {"separator", 0x1fffffff},
    {"dividing", 0x1fffffff},
    {"selected background", 0xff24405f},
    {"input box", 0xff16283f},
    {"button box", 0xff1d3350},
    {"accept bubble", 0xff1d3350},
    {"box icon text", 0xffeaf4ff},
    {"background", 0xff0e1b2e},
    {"text", 0xffeaf4ff},
};

QRgb darkColour(std::string_view key) {
    for (const auto& [words, colour] : darkColours) {
        if (key.find(words) != std::string_view::npos)
            return colour;
    }
    return 0xffff00ff;
}

/// The colour that most sources hold, with its alpha.
QRgb themeColour(const ThemeResource& theme, const KeyPath& group, const std::string& item, QRgb fallback) {
    std::map<QRgb, int> counts;
    QRgb best = fallback;
    for (ResNode* source : theme.simpleSources(group, item)) {
        const auto* colour = dynamic_cast<const ColorTextResNode*>(source);
        if (!colour || !source->isApplicable())
            continue;
        const QRgb value = QColor(QString::fromStdString(colour->composeColour())).rgba();
        if (++counts[value] > (counts.contains(best) ? counts[best] : 0))
            best = value;
    }
    return best;
}

std::pair<KeyPath, std::string> splitKey(std::string_view key) {
    KeyPath path = splitKeyPath(key);
    std::string last = path.back();
    path.pop_back();
    return {std::move(path), std::move(last)};
}

QImage darkened(QImage picture) {
    picture = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = QColor::fromRgba(row[x]);
            if (colour.hslSaturation() < 40)
                row[x] = qRgba(0x12 + (255 - colour.red()) * 216 / 255, 0x20 + (255 - colour.red()) * 212 / 255,
                               0x38 + (255 - colour.red()) * 199 / 255, colour.alpha());
        }
    }
    return picture;
}

/// The first run of black along the edge of a picture with guide lines.
Edges stretchedRun(const QImage& picture, bool across) {
    const int length = across ? picture.width() : picture.height();
    const auto isBlack = [&](int at) { return qAlpha(across ? picture.pixel(at, 0) : picture.pixel(0, at)) > 0; };
    int start = 1;
    while (start < length - 1 && !isBlack(start))
        ++start;
    int end = start;
    while (end < length - 1 && isBlack(end))
        ++end;
    return {start - 1, length - 1 - end};
}

void drawNinePatch(QPainter& painter, const QRect& place, const QImage& source) {
    const auto [left, right] = stretchedRun(source, true);
    const auto [top, bottom] = stretchedRun(source, false);
    const QImage picture = source.copy(1, 1, source.width() - 2, source.height() - 2);
    const int from[2][4] = {{0, left, picture.width() - right, picture.width()},
                            {0, top, picture.height() - bottom, picture.height()}};
    const int to[2][4] = {
        {place.left(), place.left() + left, place.left() + place.width() - right, place.left() + place.width()},
        {place.top(), place.top() + top, place.top() + place.height() - bottom, place.top() + place.height()}};
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const QRect part(QPoint(from[0][column], from[1][row]),
                             QPoint(from[0][column + 1] - 1, from[1][row + 1] - 1));
            const QRect target(QPoint(to[0][column], to[1][row]), QPoint(to[0][column + 1] - 1, to[1][row + 1] - 1));
            if (part.isValid() && target.isValid())
                painter.drawImage(target, picture, part);
        }
    }
}

class Composer {
public:
    Composer(const ThemeResource& theme, const SheetStyle& style, QPainter& painter)
        : _theme(theme)
        , _style(style)
        , _painter(painter) {}

    void draw(const ScreenLayer& layer) {
        if ((layer.absentFrom & generationBit(_theme.version())) || !isSwitchedOn(layer))
            return;
        const QRect place(layer.place.x, layer.place.y, layer.place.width, layer.place.height);
        switch (layer.kind) {
        case LayerKind::fill:
            _painter.fillRect(place, QColor::fromRgba(colourOf(layer)));
            return;
        case LayerKind::shape:
            drawShape(layer, place);
            return;
        case LayerKind::art:
            _painter.drawImage(place.topLeft(), assets::drawLayer(layer, _style.chinese));
            return;
        case LayerKind::picture:
            drawPicture(layer, place);
            return;
        case LayerKind::wallpaper:
            drawWallpaper(layer, place);
            return;
        }
    }

private:
    /// In dark colours, and where something is marked, everything is.
    [[nodiscard]] bool isSwitchedOn(const ScreenLayer& layer) const {
        if (layer.switchKey.empty())
            return true;
        const auto [group, item] = splitKey(layer.switchKey);
        return _theme.simpleTakesPart(group, item) &&
               (_style.dark || !_style.marked.empty() || _theme.simpleValue(group, item) == "true");
    }

    [[nodiscard]] QRgb colourOf(const ScreenLayer& layer) const {
        if (!_style.marked.empty())
            return layer.key == _style.marked || layer.switchKey == _style.marked ? 0xffff0000 : 0xff000000;
        if (layer.key.empty())
            return layer.fallback;
        const auto [group, item] = splitKey(layer.key);
        if (!_theme.simpleTakesPart(group, item))
            return layer.fallback;
        return _style.dark ? darkColour(layer.key) : themeColour(_theme, group, item, layer.fallback);
    }

    void drawShape(const ScreenLayer& layer, const QRect& place) {
        QImage shape = assets::drawLayer(layer, _style.chinese).convertToFormat(QImage::Format_ARGB32_Premultiplied);
        const QColor colour = QColor::fromRgba(colourOf(layer));
        {
            QPainter tint(&shape);
            tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
            tint.fillRect(shape.rect(), colour);
        }
        _painter.drawImage(place.topLeft(), shape);
    }

    [[nodiscard]] QImage load(std::string_view key) const {
        const auto [path, name] = pictureLeaf(key);
        const QImage picture(QString::fromStdString(_theme.getValue(path, name)));
        return _style.dark && !picture.isNull() ? darkened(picture) : picture;
    }

    void drawPicture(const ScreenLayer& layer, const QRect& place) {
        const QImage picture = load(layer.key);
        if (picture.isNull()) {
            _painter.fillRect(place, Qt::magenta); // Not to be overlooked.
        } else if (layer.key.ends_with(".9.png")) {
            drawNinePatch(_painter, place, picture);
        } else {
            _painter.drawImage(place, picture);
        }
    }

    void drawWallpaper(const ScreenLayer& layer, const QRect& place) {
        const auto [path, name] = pictureLeaf(layer.key);
        const QImage picture(QString::fromStdString(_theme.getValue(path, name)));
        const int width = picture.height() * phoneWidth / phoneHeight;
        _painter.drawImage(place, picture, QRect((picture.width() - width) / 2, 0, width, picture.height()));
        if (_style.dark)
            _painter.fillRect(place, QColor(6, 16, 40, 190));
    }

    const ThemeResource& _theme;
    const SheetStyle& _style;
    QPainter& _painter;
};

} // namespace

QImage composeScreen(const Screen& screen, const ThemeResource& theme, const SheetStyle& style) {
    QImage image(phoneWidth, phoneHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    Composer composer(theme, style, painter);
    for (const ScreenLayer& layer : screen.layers)
        composer.draw(layer);
    return image;
}

} // namespace zdt::test
