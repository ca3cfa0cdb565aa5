#include "assets/controls/ninePatch.h"

#include <QPainter>

namespace zdt::assets {

Guides evenGuides(QSize size, int corner, int padding) {
    return {{{corner, size.width() - 2 * corner}},
            {{corner, size.height() - 2 * corner}},
            QRect(QPoint(), size).marginsRemoved({padding, padding, padding, padding})};
}

QImage addGuides(const QImage& picture, const Guides& guides) {
    constexpr QRgb guide = 0xff000000;
    QImage framed(picture.width() + 2, picture.height() + 2, QImage::Format_ARGB32);
    framed.fill(Qt::transparent);
    QPainter painter(&framed);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(1, 1, picture);
    painter.end();

    const auto across = [&](int y, const Run& run) {
        for (int x = run.start; x < run.start + run.length; ++x)
            framed.setPixel(x + 1, y, guide);
    };
    const auto down = [&](int x, const Run& run) {
        for (int y = run.start; y < run.start + run.length; ++y)
            framed.setPixel(x, y + 1, guide);
    };
    for (const Run& run : guides.stretchAcross)
        across(0, run);
    for (const Run& run : guides.stretchDown)
        down(0, run);
    across(framed.height() - 1, {guides.content.x(), guides.content.width()});
    down(framed.width() - 1, {guides.content.y(), guides.content.height()});
    return framed;
}

} // namespace zdt::assets
