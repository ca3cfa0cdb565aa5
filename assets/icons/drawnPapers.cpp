#include "assets/art/outline.h"
#include "assets/icons/drawnSigns.h"
#include "assets/icons/signShapes.h"

#include <QTransform>

namespace zdt::assets::drawn {

namespace {

QPainterPath number(const Material& material, int pixels, const QString& digits, QPointF centre) {
    const QPainterPath path = textOutline(material.numberFace(), pixels, digits);
    return path.translated(centre - path.boundingRect().center());
}

Pieces simCard(const Material& material, const QString& digit) {
    return {{readOutline("M76 46 H107 Q111 46 114 49 L131 66 Q134 69 134 73 V134 Q134 146 122 146 H70 Q58 146 58 134 "
                         "V64 Q58 46 76 46 Z"),
             material.main(), 4},
            {number(material, 58, digit, {96, 101}), material.cut()}};
}

} // namespace

Pieces calendarPage(const Material& material) {
    const bool isDark = material.language() == Language::dune;
    const QPainterPath page = readOutline("R46 50 100 96 18");
    QPainterPath head;
    head.addRect(QRectF(46, 50, 100, 26));
    return {{page, material.sheet(), 4},
            {page.intersected(head), material.deep()},
            {thickLine("M72 43 V57 M120 43 V57", material.line() + 1), isDark ? material.ink() : material.sheet(), 2}};
}

Pieces calendar(const Material& material) {
    Pieces pieces = calendarPage(material);
    pieces.push_back({number(material, 54, QStringLiteral("12"), {96, 111}), material.ink()});
    return pieces;
}

Pieces contacts(const Material& material) {
    return {{readOutline("R120 57 26 22 6 R120 85 26 22 6 R120 113 26 22 6"), material.soft(), 2},
            {readOutline("R48 46 86 100 15"), material.main(), 4},
            {readOutline("O91 83 15"), material.cut()},
            {readOutline("M62 124 C62 99 120 99 120 124 Q120 127 117 127 H65 Q62 127 62 124 Z"), material.cut()}};
}

Pieces envelope(const Material& material) {
    return {{readOutline("R44 60 104 74 12"), material.soft(), 4},
            {readOutline("M47 130 L85 96 Q96 88 107 96 L145 130 Q141 134 136 134 H56 Q51 134 47 130 Z"),
             material.soft(), 2},
            {readOutline("M45 68 Q46 60 56 60 H136 Q146 60 147 68 L103 104 Q96 109 89 104 Z"), material.main(), 3}};
}

Pieces folder(const Material& material) {
    return {
        {readOutline("M46 66 Q46 54 58 54 H80 Q85 54 88 58 L93 65 H132 Q144 65 144 77 V120 H46 Z"), material.soft(), 4},
        {readOutline("R60 70 72 50 6"), material.of(Hue::amber), 2},
        {readOutline("R44 84 104 56 12"), material.main(), 3}};
}

Pieces notepad(const Material& material) {
    const auto lean = [](std::string_view outline) {
        return QTransform().translate(118, 108).rotate(38).translate(-118, -108).map(readOutline(outline));
    };
    return {{readOutline("R50 46 82 100 13"), material.sheet(), 4},
            {thickLine("M66 70 H116 M66 87 H104 M66 104 H92", material.line() * 0.8), material.tint()},
            {lean("M110 62 H126 V132 L118 148 L110 132 Z"), material.sheet(), 3},
            {lean("R110 68 16 62 0"), material.of(Hue::teal)},
            {lean("M110 66 V60 Q110 54 118 54 Q126 54 126 60 V66 Z"), material.of(Hue::rose)},
            {lean("M114.5 141 H121.5 L118 148 Z"), material.dark()}};
}

Pieces simCardOne(const Material& material) {
    return simCard(material, QStringLiteral("1"));
}

Pieces simCardTwo(const Material& material) {
    return simCard(material, QStringLiteral("2"));
}

} // namespace zdt::assets::drawn
