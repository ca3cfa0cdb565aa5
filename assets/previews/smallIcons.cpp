#include "assets/previews/smallIcons.h"

#include "assets/previews/phoneParts.h"

#include <array>
#include <cmath>

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

} // namespace

QImage paintSmallIcon(const PreviewSource& source, QSize size) {
    QImage picture = cutWallpaper(source, size);
    if (picture.isNull())
        return {};
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const double middle = size.width() / 2.0;
    const int digits = static_cast<int>(std::lround(size.width() * 0.22));
    const QPainterPath clock =
        centredText(source.generation.clockFace, digits, "08:08", {middle, size.height() * 0.34});
    painter.fillPath(clock, QColor::fromRgba(source.generation.lockInk));
    const int side = static_cast<int>(std::lround(size.width() * 0.145));
    const double pitch = side * 1.22;
    double x = middle - pitch * (static_cast<int>(icons.size()) - 1) / 2.0;
    for (const char* icon : icons) {
        const QImage drawn = source.picture(icon).scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        painter.drawImage(QPointF(std::round(x - side / 2.0), std::round(size.height() * 0.76 - side / 2.0)), drawn);
        x += pitch;
    }
    painter.end();
    return picture;
}

} // namespace zdt::assets
