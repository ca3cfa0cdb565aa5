#include "kit/icons.h"

#include "kit/fonts.h"
#include "kit/iconNames.h"
#include "kit/tokens.h"

#include <QIconEngine>
#include <QPainter>

#include <algorithm>

namespace zdt {

namespace {

class GlyphEngine : public QIconEngine {
public:
    GlyphEngine(Icon which, const QColor& colour, const QColor& chosen)
        : _which(which)
        , _colour(colour)
        , _chosen(chosen) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const int side = std::min(rect.width(), rect.height());
        const QRect place(rect.left(), rect.top() + (rect.height() - side) / 2, side, side);
        const QColor& shown = mode == QIcon::Disabled ? token::textOff : state == QIcon::On ? _chosen : _colour;
        paintIcon(*painter, place, _which, shown);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new GlyphEngine(*this); }

private:
    Icon _which;
    QColor _colour;
    QColor _chosen;
};

} // namespace

std::optional<Icon> iconNamed(QStringView name) {
    const std::u16string_view wanted(name.utf16(), static_cast<std::size_t>(name.size()));
    const auto found =
        std::find_if(iconNames.begin(), iconNames.end(), [&](const IconName& row) { return row.name == wanted; });
    return found == iconNames.end() ? std::nullopt : std::optional(found->icon);
}

QIcon icon(Icon which, const QColor& colour) {
    return icon(which, colour, colour);
}

QIcon icon(Icon which, const QColor& colour, const QColor& chosen) {
    return QIcon(new GlyphEngine(which, colour, chosen));
}

void paintIcon(QPainter& painter, const QRectF& place, Icon which, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(iconFont(static_cast<int>(std::min(place.width(), place.height()))));
    painter.setPen(colour);
    painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, QString(QChar(static_cast<char16_t>(which))));
    painter.restore();
}

QPixmap iconPixmap(Icon which, const QColor& colour, int size, double ratio) {
    QPixmap picture(QSize(size, size) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paintIcon(painter, QRectF(0, 0, size, size), which, colour);
    return picture;
}

} // namespace zdt
