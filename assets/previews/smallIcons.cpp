#include "assets/previews/smallIcons.h"

#include <QPainter>

#include <array>
#include <string>
#include <vector>

namespace zdt::assets {

namespace {

constexpr std::array<const char*, 5> icons{
    "icons/com.android.dialer.png", "icons/com.android.gallery3d.png",
    "icons/com.android.mms.png",    "icons/com.zendro.android.totemweather.png",
    "icons/com.android.music.png",
};

/// The part of the wallpaper behind a picture: its lower middle, where the land meets the sky.
QImage cutWallpaper(const PreviewSource& source, QSize size) {
    const QImage whole = source.picture("wallpaper/unlock_wallpaper_1.jpg");
    if (whole.isNull())
        return {};
    const int height = whole.width() * size.height() / size.width();
    const int top = static_cast<int>((whole.height() - height) * 0.62);
    return whole.copy(0, top, whole.width(), height)
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

QImage scaled(const QImage& picture, double factor) {
    return picture.isNull() ? picture
                            : picture.scaled((QSizeF(picture.size()) * factor).toSize(), Qt::IgnoreAspectRatio,
                                             Qt::SmoothTransformation);
}

/// Pictures in a row around a point, each as far from the next as `gap` says.
void paintRow(QPainter& painter, const std::vector<QImage>& pictures, QPointF middle, double gap) {
    double width = gap * (static_cast<double>(pictures.size()) - 1);
    for (const QImage& picture : pictures)
        width += picture.width();
    double x = middle.x() - width / 2;
    for (const QImage& picture : pictures) {
        // On whole pixels, so that small pictures stay sharp.
        painter.drawImage(QPointF(x, middle.y() - picture.height() / 2.0).toPoint(), picture);
        x += picture.width() + gap;
    }
}

/// The lock screen's own digits.
void paintClock(QPainter& painter, const PreviewSource& source, QPointF middle, double factor) {
    std::vector<QImage> digits;
    for (const char* name : {"number_0", "number_8", "colon", "number_0", "number_8"}) {
        const std::string path = std::string("unlock_amazing/drawable-hdpi/") + name + ".png";
        digits.push_back(scaled(source.picture(path), factor));
    }
    paintRow(painter, digits, middle, 0);
}

} // namespace

QImage paintSmallIcon(const PreviewSource& source, QSize size) {
    QImage picture = cutWallpaper(source, size);
    if (picture.isNull())
        return {};
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = size.width() / 1080.0;
    const double middle = size.width() / 2.0;
    paintClock(painter, source, {middle, size.height() * 0.34}, unit);
    std::vector<QImage> row;
    for (const char* icon : icons)
        row.push_back(scaled(source.picture(icon), unit * 0.82));
    paintRow(painter, row, {middle, size.height() * 0.77}, unit * 36);
    painter.end();
    return picture;
}

} // namespace zdt::assets
