#include "canvas/tint.h"

#include "canvas/inkMask.h"
#include "canvas/layerPainting.h"

#include <benchmark/benchmark.h>

#include <QColor>
#include <QImage>
#include <QPainter>

/// A shape as large as the screen put on a frame in a colour, beside a walk over its pixels.
namespace zdt {
namespace {

constexpr QRgb colour = 0xcc0f8040;

/// A panel with round corners, in which are holes with soft edges.
QImage makePicture() {
    QImage picture(1080, 2160, QImage::Format_ARGB32);
    picture.fill(0);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(picture.rect().adjusted(20, 20, -20, -20), 60, 60);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    for (int y = 100; y < 2000; y += 160)
        painter.drawEllipse(90 + y % 700, y, 120, 120);
    painter.end();
    return picture;
}

QImage makeFrame() {
    QImage frame(1080, 2160, QImage::Format_RGB32);
    frame.fill(Qt::white);
    return frame;
}

void tintShape(benchmark::State& state) {
    const InkMask shape = InkMask::ofImage(makePicture());
    QImage frame = makeFrame();
    const FrameLines lines(frame);
    for (auto _ : state) {
        paintShape(lines, frame.rect(), shape, tintTable(colour), QPoint());
        benchmark::ClobberMemory();
    }
}

void walkPixels(benchmark::State& state) {
    const QImage picture = makePicture();
    QImage frame = makeFrame();
    const QColor wanted = QColor::fromRgba(colour);
    for (auto _ : state) {
        QImage image(picture.size(), QImage::Format_ARGB32);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                QColor pixel = picture.pixelColor(x, y);
                const int alpha = pixel.alpha() * wanted.alpha() / 255;
                pixel.setRgb(wanted.red(), wanted.green(), wanted.blue(), alpha);
                image.setPixelColor(x, y, pixel);
            }
        }
        QPainter(&frame).drawImage(0, 0, image);
        benchmark::ClobberMemory();
    }
}

BENCHMARK(tintShape)->Unit(benchmark::kMicrosecond);
BENCHMARK(walkPixels)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace zdt

BENCHMARK_MAIN();
