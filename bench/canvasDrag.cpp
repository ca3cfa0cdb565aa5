#include "canvas/drawPreview.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QColor>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <memory>

/// An item is dragged over a canvas of 60 items with pictures: each frame is a move of the mouse and the painting that
/// follows. A frame at 60 Hz leaves 16 ms to it; the longest one is told as `worst`, in milliseconds, and
/// as `press` and `lift` the painting that follows the press, and the first move, in which what lies around the item is
/// drawn.
namespace zdt {
namespace {

constexpr int itemCount = 60;
constexpr int pictureSide = 300;

QImage picture(int number) {
    QImage drawn(pictureSide, pictureSide, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor::fromHsv(number * 6, 200, 220, 200));
    painter.drawEllipse(drawn.rect());
    return drawn;
}

void fill(CDrawPreview& canvas) {
    canvas.set2160Height();
    canvas.setMode2(true);
    QImage wallpaper(1080, 2160, QImage::Format_RGB32);
    wallpaper.fill(Qt::darkCyan);
    auto backdrop = std::make_unique<CDrawItem>("wallpaper");
    backdrop->SetRect({0, 0, 1080, 2160});
    backdrop->setPicture(wallpaper);
    backdrop->locked = true;
    canvas.addItem(std::move(backdrop));
    for (int number = 0; number < itemCount; ++number) {
        auto item = std::make_unique<CDrawItem>("item");
        const int left = number % 6 * 150;
        const int top = number / 6 * 180;
        item->SetRect({left, top, left + pictureSide, top + pictureSide});
        item->setPicture(picture(number));
        canvas.addItem(std::move(item));
    }
}

void send(CDrawPreview& canvas, QEvent::Type type, const QPointF& point, Qt::MouseButton button,
          Qt::MouseButtons buttons) {
    QMouseEvent event(type, point, canvas.mapToGlobal(point), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&canvas, &event);
}

double millisecondsOf(auto&& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

/// @param corner whether the item is resized, so that its picture is scaled for each frame
void drag(benchmark::State& state, bool corner) {
    const auto width = static_cast<int>(state.range(0));
    const auto ratio = static_cast<double>(state.range(1));
    CDrawPreview canvas;
    fill(canvas);
    canvas.resize(width, 2 * width);
    QImage screen(canvas.size() * ratio, QImage::Format_RGB32);
    screen.setDevicePixelRatio(ratio);
    canvas.render(&screen);
    const double pixel = width / 1080.0;
    // An item in the middle of the order, or the corner of the last one, which begins at 750, 1620.
    const QPointF start = (corner ? QPointF(760, 1630) : QPointF(450, 1070)) * pixel;
    send(canvas, QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
    const double press = millisecondsOf([&] { canvas.render(&screen); });
    const double lift = millisecondsOf([&] {
        send(canvas, QEvent::MouseMove, start + QPointF(4, 4), Qt::NoButton, Qt::LeftButton);
        canvas.render(&screen);
    });
    double worst = 0;
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
        ++step;
        const QPointF way = QPointF(std::cos(step * 0.1), std::sin(step * 0.1)) * 300 * pixel;
        worst = std::max(worst, millisecondsOf([&] {
                             send(canvas, QEvent::MouseMove, start + way, Qt::NoButton, Qt::LeftButton);
                             canvas.render(&screen);
                         }));
    }
    if (canvas.handState() != (corner ? HandState::resizing : HandState::moving))
        state.SkipWithError("nothing was dragged");
    state.counters["press"] = press;
    state.counters["lift"] = lift;
    state.counters["worst"] = worst;
}

void moveItem(benchmark::State& state) {
    drag(state, false);
}

void resizeItem(benchmark::State& state) {
    drag(state, true);
}

// Widths of the control at the base size and in a large window, and the pixels that each of its own has on the screen.
BENCHMARK(moveItem)->Args({252, 1})->Args({252, 2})->Args({520, 1})->Args({520, 2})->Unit(benchmark::kMillisecond);
BENCHMARK(resizeItem)->Args({252, 1})->Args({520, 2})->Unit(benchmark::kMillisecond);

} // namespace
} // namespace zdt

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
