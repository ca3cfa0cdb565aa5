#include "assets/previews/homePages.h"

#include "assets/previews/phoneParts.h"
#include "canvas/screens/screenLayer.h"
#include "kit/colourText.h"

#include <array>
#include <span>
#include <string>

namespace zdt::assets {

namespace {

struct HomeApp {
    const char* name;
    const char* icon; ///< In the template.
};

constexpr std::array<HomeApp, 24> pageApps{{
    {"Gallery", "icons/com.android.gallery3d.png"},
    {"Weather", "icons/com.zendro.android.totemweather.png"},
    {"Calendar", "icons/com.android.calendar.png"},
    {"Clock", "icons/com.android.deskclock.png"},
    {"Music", "icons/com.android.music.png"},
    {"Videos", "icons/com.zendro.video.png"},
    {"Notes", "icons/com.zendro.android.notepad.png"},
    {"Health", "icons/com.zendro.android.health.png"},
    {"Files", "icons/com.android.filemanager.png"},
    {"Email", "icons/com.android.email.png"},
    {"Calculator", "icons/com.android.calculator2.png"},
    {"Recorder", "icons/com.android.soundrecorder.png"},
    {"Compass", "icons/com.zendro.android.compass.png"},
    {"Wallet", "icons/com.zendro.android.wallet.png"},
    {"Books", "icons/com.zendro.reader.png"},
    {"Games", "icons/com.zendro.android.gamecenter.png"},
    {"Translate", "icons/com.zendro.android.translator.png"},
    {"Store", "icons/com.zendro.zdmarket.png"},
    {"Themes", "icons/com.zendro.android.thememanager.png"},
    {"Settings", "icons/com.android.settings.png"},
    {"Contacts", "icons/com.android.contacts.png"},
    {"Radio", "icons/com.android.fmradio.png"},
    {"Cloud", "icons/com.zendro.cloud.png"},
    {"Tips", "icons/com.zendro.android.tips.png"},
}};

constexpr std::array<HomeApp, 4> dockApps{{
    {"Phone", "icons/com.android.dialer.png"},
    {"Messages", "icons/com.android.mms.png"},
    {"Browser", "icons/com.android.browser.png"},
    {"Camera", "icons/com.android.camera.png"},
}};

/// Middles of rows, from the top of the screen.
struct HomeLayout {
    int firstRow;
    int rowPitch;
    int rows;
    int dots;
    int dock;
    int widgetRows; ///< The lowest of the rows, beside a widget.
};

constexpr HomeLayout lowLayout{236, 272, 5, 1536, 1674, 2};
constexpr HomeLayout tallLayout{252, 270, 6, 1818, 1956, 3};

constexpr int columns = 4;
constexpr int firstColumn = 171;
constexpr int columnPitch = 246;
constexpr int iconSide = 192;
constexpr QRgb white = 0xffffffff;

/// The colour of the labels under icons.
QRgb labelInk(const ThemeResource& theme) {
    const std::string text = theme.getValue({"launcher", "text"}, "workspace_app_text_color");
    return colourOf(QString::fromStdString(text)).value_or(QColor(white)).rgba();
}

/// A page being painted. What is written on it is put together and painted last, above one shadow.
class HomePage {
public:
    HomePage(const PreviewSource& source, QSize size)
        : _source(source)
        , _layout(hasKeys(source.generation) ? lowLayout : tallLayout)
        , _picture(cutWallpaper(size))
        , _painter(&_picture) {
        _painter.setRenderHint(QPainter::Antialiasing);
        _painter.setRenderHint(QPainter::SmoothPixmapTransform);
    }

    [[nodiscard]] const HomeLayout& layout() const { return _layout; }

    /// The lowest rows full of applications.
    void addRows(int rows) {
        int place = (_layout.rows - rows) * columns;
        for (const HomeApp& app : std::span(pageApps).first(static_cast<std::size_t>(rows * columns)))
            addApp(app, place++);
    }

    void addDock() {
        int column = 0;
        for (const HomeApp& app : dockApps)
            paintPicture(app.icon, QPointF(firstColumn + columnPitch * column++, _layout.dock));
    }

    /// The page's place among others.
    void addDots(int here) {
        constexpr int count = 3;
        constexpr double pitch = 42;
        for (int page = 0; page < count; ++page) {
            const QPointF middle(phoneWidth / 2.0 + (page - count / 2) * pitch, _layout.dots);
            const double radius = page == here ? 11 : 8;
            (page == here ? _written : _faint).addEllipse(middle, radius, radius);
        }
    }

    /// Time and date at the left, the weather at the right.
    void addWidget() {
        constexpr Face textFace{interFace, 400};
        constexpr int left = 82;     // As the icons below.
        constexpr int weather = 909; // Over the last column.
        const double top = _layout.firstRow + 30;
        const LockScene scene = phoneScene();
        const Face& digits = _source.generation.clockFace;
        _written.addPath(lineFrom(digits, 240, timeText(scene), {left, top + 174}));
        _written.addPath(lineFrom(textFace, 48, scene.date, {left, top + 276}));
        paintPicture("icons/dynamic_icons/com.zendro.android.totemweather/sunny.png", {weather, top + 90});
        _written.addPath(centredText(textFace, 48, "24 °C", {weather, top + 258}));
    }

    QImage finish() {
        paintLifted(_painter, _written, labelInk(_source.theme));
        _painter.fillPath(_faint, QColor(255, 255, 255, 140));
        paintStatus(_painter, white);
        paintSystemBar(_painter, _picture.height(), _source.generation, white);
        _painter.end();
        return _picture;
    }

private:
    /// The part that the phone shows of it on the page in the middle.
    [[nodiscard]] QImage cutWallpaper(QSize size) const {
        const QImage whole = _source.picture("wallpaper/home_wallpaper_0.jpg");
        return whole.copy((whole.width() - size.width()) / 2, 0, size.width(), size.height())
            .convertToFormat(QImage::Format_RGB32);
    }

    /// A line whose ink starts at a point of the baseline.
    static QPainterPath lineFrom(const Face& face, int pixels, const QString& text, QPointF start) {
        const QPainterPath line = textOutline(face, pixels, text);
        return line.translated(start.x() - line.boundingRect().left(), start.y());
    }

    void addApp(const HomeApp& app, int place) {
        constexpr Face labelFace{interFace, 400};
        constexpr int labelPixels = 36;
        constexpr int labelDrop = 126;
        const QPointF middle(firstColumn + place % columns * columnPitch,
                             _layout.firstRow + place / columns * _layout.rowPitch);
        paintPicture(app.icon, middle);
        _written.addPath(centredText(labelFace, labelPixels, app.name, middle + QPointF(0, labelDrop)));
    }

    void paintPicture(const std::string& path, QPointF middle) {
        _painter.drawImage(middle - QPointF(iconSide, iconSide) / 2, _source.picture(path));
    }

    const PreviewSource& _source;
    const HomeLayout& _layout;
    QImage _picture;
    QPainter _painter;
    QPainterPath _written;
    QPainterPath _faint;
};

} // namespace

QImage paintIconsPage(const PreviewSource& source, QSize size) {
    HomePage page(source, size);
    page.addRows(page.layout().rows);
    page.addDots(1);
    page.addDock();
    return page.finish();
}

QImage paintWidgetPage(const PreviewSource& source, QSize size) {
    HomePage page(source, size);
    page.addWidget();
    page.addRows(page.layout().widgetRows);
    page.addDots(0);
    page.addDock();
    return page.finish();
}

} // namespace zdt::assets
