#include "shell/templatePhones.h"

#include "kit/shadow.h"
#include "kit/skinFolder.h"
#include "kit/tokens.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <string>

namespace zdt {

namespace {

/// A phone's outer place in the picture of all three, which is 512 by 488, and the preview that its screen shows.
struct Phone {
    QRect place;
    const char* preview;
};

constexpr QSize allPhones(512, 488);
constexpr int bezel = 8;
/// Small enough to leave the status bar in the pictures whole.
constexpr int outerRadius = 22;
constexpr int innerRadius = 14;
constexpr QColor body(0x1B, 0x1C, 0x1F);

/// A screen of the front phone in the largest window, in logical pixels.
constexpr QSize largestScreen(320, 640);

const std::array<Phone, 3> phones{{{QRect(0, 56, 200, 384), "preview_widget_0.jpg"},
                                   {QRect(312, 56, 200, 384), "preview_mms_0.jpg"},
                                   {QRect(134, 0, 252, 488), "preview_unlock_0.jpg"}}};

} // namespace

CTemplatePhones::CTemplatePhones(QWidget* parent)
    : QWidget(parent) {
    setMinimumSize(360, 343);
    connect(&_screens, &Thumbnails::ready, this, qOverload<>(&QWidget::update));
}

void CTemplatePhones::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const double scale =
        std::min({1.35, double(width()) / allPhones.width(), double(height()) / (allPhones.height() + 40)});
    painter.translate((width() - allPhones.width() * scale) / 2, (height() - allPhones.height() * scale) / 2);
    painter.scale(scale, scale);
    const std::string folder = skinRoots().program + "default9.1/preview/";
    for (const auto& [place, preview] : phones) {
        const QImage picture = _screens.picture(folder + preview, largestScreen * devicePixelRatioF());
        if (picture.isNull())
            continue;
        paintShadow(painter, place, outerRadius, token::shadowPhone);
        painter.setPen(Qt::NoPen);
        painter.setBrush(body);
        painter.drawRoundedRect(place, outerRadius, outerRadius);
        const QRectF screen = place.adjusted(bezel, bezel, -bezel, -bezel);
        QPainterPath shape;
        shape.addRoundedRect(screen, innerRadius, innerRadius);
        painter.save();
        painter.setClipPath(shape);
        const QSizeF size = QSizeF(picture.size()).scaled(screen.size(), Qt::KeepAspectRatioByExpanding);
        const QRectF target(QPointF(screen.center().x() - size.width() / 2, screen.top()), size);
        painter.drawImage(target, picture);
        painter.restore();
    }
}

} // namespace zdt
