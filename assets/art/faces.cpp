#include "assets/art/faces.h"

#include <QFontInfo>
#include <QStringList>

#include <algorithm>

namespace zdt::assets {

namespace {

/// Outlines are taken at this size and scaled, so that they have all the precision of the font.
constexpr int signPixels = 960;

} // namespace

QString missingFonts() {
    QString missing;
    for (const char* name : {interFace, interDisplayFace, chineseFace, serifFace, signFace}) {
        if (QFontInfo(QFont(QStringList{name})).family() != QLatin1String(name))
            missing += QLatin1String(name) + QLatin1Char('\n');
    }
    return missing;
}

QFont makeFont(const Face& face, int pixels) {
    QFont font(QStringList{face.family, chineseFace});
    font.setPixelSize(pixels);
    font.setWeight(static_cast<QFont::Weight>(face.weight));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QPainterPath textOutline(const Face& face, int pixels, const QString& text) {
    QPainterPath path;
    path.addText(QPointF(), makeFont(face, pixels), text);
    return path;
}

QPainterPath signOutline(char32_t sign, const QRectF& box) {
    QPainterPath path;
    path.addText(QPointF(), makeFont({signFace, QFont::Normal}, signPixels), QString::fromUcs4(&sign, 1));
    const double side = std::min(box.width(), box.height());
    const QPointF corner = box.center() - QPointF(side / 2, side / 2);
    // The em square stands on the baseline.
    return QTransform().translate(corner.x(), corner.y() + side).scale(side / signPixels, side / signPixels).map(path);
}

} // namespace zdt::assets
