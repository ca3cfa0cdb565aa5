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

/// Parts of the picture's width and height.
struct Arrangement {
    QPointF clock;    ///< Its middle.
    double clockSize; ///< 1 is as on the lock screen.
    double icons;     ///< The middle of the row.
    double sunnyCut;  ///< How much of what is cut off the wallpaper lies above.
    double nightCut;
};

/// The clock stands in the sky beside the sun, or above it.
constexpr Arrangement landscape{{0.305, 0.185}, 0.62, 0.79, 0.40, 0.66};
constexpr Arrangement square{{0.5, 0.185}, 1, 0.86, 0.39, 0.62};

QImage cutWallpaper(const PreviewSource& source, QSize size, const Arrangement& arrangement) {
    const QImage whole = source.picture("wallpaper/unlock_wallpaper_1.jpg");
    if (whole.isNull())
        return {};
    const bool isNight = source.generation.language == Language::aurora;
    const int height = whole.width() * size.height() / size.width();
    const double above = (whole.height() - height) * (isNight ? arrangement.nightCut : arrangement.sunnyCut);
    return whole.copy(0, static_cast<int>(above), whole.width(), height)
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
    const Arrangement& arrangement = size.width() > size.height() ? landscape : square;
    QImage picture = cutWallpaper(source, size, arrangement);
    if (picture.isNull())
        return {};
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = size.width() / 1080.0;
    const QPointF clock(size.width() * arrangement.clock.x(), size.height() * arrangement.clock.y());
    paintClock(painter, source, clock, unit * arrangement.clockSize);
    std::vector<QImage> row;
    for (const char* icon : icons)
        row.push_back(scaled(source.picture(icon), unit * 0.82));
    paintRow(painter, row, {size.width() / 2.0, size.height() * arrangement.icons}, unit * 36);
    painter.end();
    return picture;
}

} // namespace zdt::assets
