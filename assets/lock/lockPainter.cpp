#include "assets/lock/lockPainter.h"

#include "assets/art/faces.h"
#include "assets/art/statusBar.h"
#include "lockscreen/conditions.h"
#include "lockscreen/geometry.h"
#include "lockscreen/layoutDocument.h"
#include "support/files.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cstdlib>
#include <string_view>

namespace zdt::assets {

namespace {

constexpr int designWidth = static_cast<int>(screenWidth);
constexpr double pixelsPerPoint = 3; ///< Of a text's size, at a width of 1080.
constexpr Face textFace{interFace, QFont::Normal};

struct Files {
    std::string layout;
    std::string pictures; ///< Ending in "/".
};

Files filesOf(const std::string& directory, LockForm form) {
    const bool isSlide = form == LockForm::slide;
    const std::string root = directory + (isSlide ? "unlock_slide/" : "unlock_amazing/");
    const std::string layout = root + "layout-hdpi/" + (isSlide ? "layout_slide" : "layout1");
    const std::string full = layout + "_full.xml";
    return {pathExists(full) ? full : layout + ".xml", root + "drawable-hdpi/"};
}

QImage load(const std::string& path) {
    return QImage(QString::fromStdString(path));
}

/// The middle of a picture that fills a size.
QImage covering(const QImage& picture, QSize size) {
    const QImage scaled = picture.size() == size
                              ? picture
                              : picture.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    return scaled.copy((scaled.width() - size.width()) / 2, (scaled.height() - size.height()) / 2, size.width(),
                       size.height());
}

int layoutHeight(QSize size) {
    const double height = static_cast<double>(size.height()) * designWidth / size.width();
    return std::abs(height - screenHeight) <= std::abs(height - tallScreenHeight) ? screenHeight : tallScreenHeight;
}

/// Paints the elements of a layout one after the other.
class LayoutPainter {
public:
    LayoutPainter(QPainter& painter, const LockScene& scene, std::string pictures, int height)
        : _painter(painter)
        , _scene(scene)
        , _pictures(std::move(pictures))
        , _height(height) {}

    void paint(const AmazingChild& element) {
        if (!isVisible(element))
            return;
        if (element.name() == "image")
            paintImage(element.src(), placeOf(element));
        else if (element.name() == "text")
            paintText(element);
        else if (element.name() == "MusicControl")
            paintMusic(element);
    }

private:
    [[nodiscard]] bool isVisible(const AmazingChild& element) const {
        const auto value = [&](std::string_view variable) { return valueOf(_scene, variable); };
        return evaluateCondition(element.attribute("visible"), value).value_or(false);
    }

    [[nodiscard]] QRectF placeOf(const AmazingChild& element) const {
        const auto pixel = [&](const char* key) {
            return pixelOf(element.attribute(key), static_cast<std::uint32_t>(_height)).value_or(0);
        };
        return QRectF(pixel("x"), pixel("y"), pixel("w"), pixel("h"));
    }

    void paintImage(const std::string& src, const QRectF& place) {
        const auto name = pictureAt(_scene, src, _height);
        const QImage picture = name ? load(_pictures + *name) : QImage();
        if (!picture.isNull())
            _painter.drawImage(place.topLeft(),
                               picture.scaled(place.size().toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }

    void paintText(const AmazingChild& element) {
        const QString text = textOf(_scene, element.src());
        const QRectF place = placeOf(element);
        const int pixels = static_cast<int>(std::strtod(element.attribute("size").c_str(), nullptr) * pixelsPerPoint);
        if (text.isEmpty() || pixels <= 0)
            return;
        const QFontMetricsF metrics(makeFont(textFace, pixels));
        const std::string align = element.attribute("align");
        const double spare = place.width() - metrics.horizontalAdvance(text);
        const double indent = align == "center" ? spare / 2 : align == "right" ? spare : 0;
        const double baseline = place.center().y() + metrics.capHeight() / 2;
        _painter.fillPath(textOutline(textFace, pixels, text).translated(place.left() + indent, baseline),
                          QColor(QString::fromStdString(element.attribute("color"))));
    }

    /// The control as it looks while no finger is on it.
    void paintMusic(const AmazingChild& control) {
        if (!_scene.showsMusic)
            return;
        for (const auto& part : control.children()) {
            if (part->name() != "button")
                paint(*part);
            for (const auto& state : part->children()) {
                if (state->name() == "NormalState")
                    paintImage(state->children().front()->src(), placeOf(*part));
            }
        }
    }

    QPainter& _painter;
    const LockScene& _scene;
    std::string _pictures;
    int _height;
};

} // namespace

QImage paintLockScreen(const std::string& templateDirectory, QSize size, const Generation& generation,
                       const LockScene& scene, LockForm form) {
    const Files files = filesOf(templateDirectory, form);
    const QImage wallpaper = load(templateDirectory + "wallpaper/unlock_wallpaper_1.jpg");
    LayoutElements elements;
    if (wallpaper.isNull() || !readLayout(files.layout, elements))
        return {};
    const int height = layoutHeight(size);
    QImage screen = covering(wallpaper, {designWidth, height}).convertToFormat(QImage::Format_RGB32);
    QPainter painter(&screen);
    painter.setRenderHint(QPainter::Antialiasing);
    LayoutPainter layout(painter, scene, files.pictures, height);
    for (const auto& element : elements)
        layout.paint(*element);
    if (scene.hasStatusBar)
        drawStatusBar(painter, generation.lockInk, timeText(scene), scene.battery);
    painter.end();
    return covering(screen, size);
}

} // namespace zdt::assets
