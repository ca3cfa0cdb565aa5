#include "canvas/drawPictrue.h"
#include "canvas/imagePoints.h"
#include "canvas/previewComposition.h"
#include "canvas/screens/screenTable.h"
#include "support/files.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPainter>
#include <QTemporaryDir>

#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// The composed preview after a change of the colour that covers most, beside a copy of its pixels; and its repainting,
/// beside that of a widget of one colour. One screen that is made up, and all that the skin has pictures for.
namespace zdt {
namespace {

/// Pictures of the made-up screen.
class Pictures {
public:
    /// A panel, or with a line of text in it, as a file.
    std::string make(const QSize& size, const QString& text, int radius) {
        QImage picture(size, QImage::Format_ARGB32);
        picture.fill(0);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(Qt::black);
        if (radius > 0)
            painter.drawRoundedRect(picture.rect(), radius, radius);
        QFont font;
        font.setPixelSize(size.height() * 3 / 4);
        painter.setFont(font);
        painter.drawText(picture.rect(), Qt::AlignVCenter, text);
        painter.end();
        const QString path = _folder.filePath(QString::number(_count++) + ".png");
        picture.save(path);
        return path.toStdString();
    }

private:
    QTemporaryDir _folder;
    int _count = 0;
};

PreviewPart partAt(const QRect& place, QRgb colour, const std::string& key, const std::string& picture = {}) {
    PreviewPart part;
    part.isColorFill = true;
    part.x = place.x();
    part.y = place.y();
    part.width = place.width();
    part.height = place.height();
    part.colorNormal = colour;
    part.key = key;
    part.picture = picture;
    return part;
}

/// A list of calls above a pad of keys: 80 layers.
PreviewDescription madeUpScreen(Pictures& pictures) {
    PreviewDescription screen;
    screen.parts.push_back(partAt(previewFrame, 0xff0e1b2e, "background"));
    for (int row = 0; row < 13; ++row) {
        const int y = 100 + row * 70;
        screen.parts.push_back(
            partAt({150, y, 500, 50}, 0xffeaf4ff, "text", pictures.make({500, 50}, "Mei Lin of Hangzhou", 0)));
        screen.parts.push_back(
            partAt({700, y, 300, 40}, 0x99eaf4ff, "second", pictures.make({300, 40}, "Yesterday", 0)));
        screen.parts.push_back(partAt({60, y, 60, 60}, 0xff2bd9a0, "icon", pictures.make({60, 60}, "", 20)));
        screen.parts.push_back(partAt({60, y + 66, 960, 2}, 0x33ffffff, "line"));
    }
    screen.parts.push_back(partAt({0, 1000, 1080, 1160}, 0xf0182b47, "pad", pictures.make({1080, 1160}, "", 60)));
    for (int key = 0; key < 13; ++key) {
        const int x = 120 + key % 3 * 320;
        const int y = 1050 + key / 3 * 200;
        screen.parts.push_back(
            partAt({x, y, 200, 120}, 0xffeaf4ff, "text", pictures.make({200, 120}, QString::number(key), 0)));
        screen.parts.push_back(partAt({x, y + 120, 200, 40}, 0x99eaf4ff, "second", pictures.make({200, 40}, "ABC", 0)));
    }
    return screen;
}

/// The layers of the skin; the theme's pictures aren't there.
PreviewDescription realScreen(const Screen& screen) {
    PreviewDescription made;
    for (const ScreenLayer& layer : screen.layers) {
        if (layer.kind == LayerKind::picture || layer.kind == LayerKind::wallpaper)
            continue;
        const bool hasPicture = layer.kind != LayerKind::fill;
        const std::string file = ZDT_SKIN_DIR + layerFile(screen, layer, false);
        const QRect place(layer.place.x, layer.place.y, layer.place.width, layer.place.height);
        if (hasPicture && !pathExists(file))
            continue;
        made.parts.push_back(partAt(place, layer.fallback, std::string(layer.key), hasPicture ? file : std::string()));
        made.parts.back().isColorFill = layer.kind != LayerKind::art;
    }
    return made;
}

/// The key whose parts cover most.
std::string widestKey(PreviewComposition& composition) {
    std::map<std::string, std::int64_t> areas;
    std::string widest;
    for (std::size_t part = 0; part < composition.parts().size(); ++part) {
        const std::string& key = composition.parts()[part].key;
        const QRect ink = composition.inkOf(part);
        if (key.empty() || !composition.parts()[part].isColorFill)
            continue;
        areas[key] += std::int64_t{ink.width()} * ink.height();
        if (widest.empty() || areas[key] > areas[widest])
            widest = key;
    }
    return widest;
}

void copyFrame(benchmark::State& state) {
    const QImage frame(previewFrame.size(), QImage::Format_RGB32);
    QImage copy(previewFrame.size(), QImage::Format_RGB32);
    copy.fill(0);
    for (auto _ : state) {
        std::memcpy(copy.bits(), frame.constBits(), static_cast<std::size_t>(frame.sizeInBytes()));
        benchmark::ClobberMemory();
    }
}

void recolour(benchmark::State& state, PreviewComposition& composition) {
    const std::string key = widestKey(composition);
    QRgb colour = 0xff102030;
    benchmark::DoNotOptimize(composition.frame().constBits());
    for (auto _ : state) {
        composition.setColour(key, colour ^= 0xff);
        benchmark::DoNotOptimize(composition.frame().constBits());
    }
}

class Blank : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Qt::darkBlue); }
};

void repaint(benchmark::State& state, QWidget& widget) {
    widget.resize(294, 588);
    widget.show();
    QCoreApplication::processEvents();
    for (auto _ : state)
        widget.repaint();
}

void changeShown(benchmark::State& state, const std::shared_ptr<PreviewComposition>& composition,
                 const std::string& key) {
    CDrawPictrue view;
    view.setComposition(composition);
    view.resize(294, 588);
    view.show();
    QCoreApplication::processEvents();
    QRgb colour = 0xff102030;
    for (auto _ : state) {
        composition->setColour(key, colour ^= 0xff);
        view.refresh();
        QCoreApplication::processEvents();
    }
}

void registerAll(const std::vector<std::pair<std::string, std::shared_ptr<PreviewComposition>>>& screens) {
    const auto us = benchmark::kMicrosecond;
    benchmark::RegisterBenchmark("copyFrame", copyFrame)->Unit(us);
    for (const auto& [name, screen] : screens)
        benchmark::RegisterBenchmark(("recolour/" + name).c_str(), [screen](benchmark::State& state) {
            recolour(state, *screen);
        })->Unit(us);
    const auto first = screens.front().second;
    benchmark::RegisterBenchmark("repaintBlank", [](benchmark::State& state) {
        Blank blank;
        repaint(state, blank);
    })->Unit(us);
    benchmark::RegisterBenchmark("repaintPreview", [first](benchmark::State& state) {
        CDrawPictrue view;
        view.setComposition(first);
        repaint(state, view);
    })->Unit(us);
    for (const char* key : {"background", "icon"})
        benchmark::RegisterBenchmark((std::string("changeShown/") + key).c_str(), [first,
                                                                                   key](benchmark::State& state) {
            changeShown(state, first, key);
        })->Unit(us);
}

} // namespace
} // namespace zdt

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    zdt::Pictures pictures;
    const QTemporaryDir workspace;
    zdt::ImagePoints points({workspace.path().toStdString() + "/", workspace.path().toStdString() + "/"});
    std::vector<std::pair<std::string, std::shared_ptr<zdt::PreviewComposition>>> screens;
    const auto add = [&](const std::string& name, zdt::PreviewDescription description) {
        screens.emplace_back(name, std::make_shared<zdt::PreviewComposition>(points));
        screens.back().second->setDescription(std::move(description));
    };
    add("made up", zdt::madeUpScreen(pictures));
    for (const zdt::Screen& screen : zdt::allScreens()) {
        if (zdt::PreviewDescription real = zdt::realScreen(screen); !real.parts.empty())
            add(std::string(screen.module) + " " + std::string(screen.name), std::move(real));
    }
    zdt::registerAll(screens);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
