#include "assets/skin/skinPictures.h"

#include "assets/art/picture.h"

namespace zdt::assets {

QImage drawSkinPicture(const SkinPicture& picture) {
    Canvas canvas(picture.size * picture.scale);
    canvas.painter().scale(picture.scale, picture.scale);
    picture.paint(canvas.painter(), QRectF(QPointF(), QSizeF(picture.size)));
    return canvas.finish();
}

} // namespace zdt::assets
