#pragma once

#include "canvas/previewPart.h"
#include "common/fixtures.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <string>

namespace zdt::test {

/// A disc with a soft edge in the middle of nothing; its ink is smaller than the picture.
inline QImage disc(const QSize& size, QColor colour = Qt::black) {
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(0);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(picture.rect().adjusted(3, 2, -4, -5));
    return picture;
}

inline std::string saved(const TemporaryFolder& folder, const std::string& name, const QImage& picture) {
    const std::string path = folder.write(name, "");
    EXPECT_TRUE(picture.save(QString::fromStdString(path)));
    return path;
}

inline PreviewPart part(const QRect& place, QRgb colour, const std::string& key, const std::string& picture = {}) {
    PreviewPart made;
    made.isColorFill = colour != 0;
    made.x = place.x();
    made.y = place.y();
    made.width = place.width();
    made.height = place.height();
    made.colorNormal = colour;
    made.key = key;
    made.picture = picture;
    return made;
}

} // namespace zdt::test
