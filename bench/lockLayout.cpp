#include "lockscreen/lockDesign.h"
#include "support/files.h"

#include <benchmark/benchmark.h>
#include <tinyxml2.h>
#include <unistd.h>

#include <string>

/// Reading, normalising and writing a lock screen, beside the bare loading and saving of the same file.
namespace zdt {
namespace {

constexpr std::uint32_t height = 2160;

std::string elementOf(std::size_t index) {
    const std::string place = R"( x=")" + std::to_string(index % 1000) + R"(" y="system.screen_height - )" +
                              std::to_string(index % 1900 + 20) + R"( - 20" w="100" h="200")";
    switch (index % 4) {
    case 0:
        return "<image name=\"pendant\"" + place + R"( src="picture_)" + std::to_string(index) + R"(.png"/>)";
    case 1:
        return "<text" + place + R"( src="system.date" align="left" size="14" color="#FF3e3e3e"/>)";
    case 2:
        return "<image" + place + R"( src="charge.png" visible=")" + std::string(chargeConditions[index % 10]) +
               R"("/>)";
    default:
        return "<image" + place +
               R"( src="leaf.png"><animation type="alpha" fromAlpha="0.1" duration="3000"/></image>)";
    }
}

/// A layout of so many elements, as a file of its own in the temporary folder.
class LayoutFile {
public:
    explicit LayoutFile(std::size_t count)
        : _path("/tmp/zdt-bench-layout-" + std::to_string(::getpid()) + ".xml") {
        std::string text = R"(<layout frameRate="30" version="3.0" screenwidth="1080">)";
        for (std::size_t index = 0; index < count; ++index)
            text += elementOf(index);
        if (!writeFile(_path, text + "</layout>"))
            std::abort();
    }
    ~LayoutFile() { static_cast<void>(removeFile(_path)); }
    LayoutFile(const LayoutFile&) = delete;
    LayoutFile& operator=(const LayoutFile&) = delete;

    [[nodiscard]] const std::string& path() const { return _path; }

private:
    std::string _path;
};

void design(benchmark::State& state) {
    const LayoutFile file(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        LayoutElements elements;
        if (!readLayout(file.path(), elements))
            state.SkipWithError("not read");
        const LockDesign read(std::move(elements), height);
        if (!writeLayout(file.path(), read.elements()))
            state.SkipWithError("not written");
    }
}

void bareXml(benchmark::State& state) {
    const LayoutFile file(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        tinyxml2::XMLDocument document;
        if (document.LoadFile(file.path().c_str()) != tinyxml2::XML_SUCCESS ||
            document.SaveFile(file.path().c_str()) != tinyxml2::XML_SUCCESS)
            state.SkipWithError("not read or written");
    }
}

BENCHMARK(design)->Arg(500)->Arg(1000)->Arg(2000)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareXml)->Arg(500)->Arg(1000)->Arg(2000)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace zdt

BENCHMARK_MAIN();
