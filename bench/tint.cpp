#include "canvas/tint.h"

#include "canvas/inkMask.h"

#include <benchmark/benchmark.h>

#include <QColor>
#include <QImage>
#include <QPainter>

/// A shape as large as the screen in a colour, beside a walk over its pixels.
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

void tintShape(benchmark::State& state) {
    const InkMask shape = InkMask::ofImage(makePicture());
    for (auto _ : state)
        benchmark::DoNotOptimize(tinted(shape, colour));
}

void walkPixels(benchmark::State& state) {
    const QImage picture = makePicture();
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
        benchmark::DoNotOptimize(image);
    }
}

BENCHMARK(tintShape)->Unit(benchmark::kMicrosecond);
BENCHMARK(walkPixels)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace zdt

BENCHMARK_MAIN();
