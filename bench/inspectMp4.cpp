#include "packaging/mp4.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <string>

/// Inspecting each MP4 file that the command line names; the benchmark bears the file's path.
namespace zdt {
namespace {

void inspect(benchmark::State& state, const std::string& path) {
    std::array<char, 32> brand{};
    std::uint32_t size = 0;
    std::uint32_t seconds = 0;
    std::uint32_t rate = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    for (auto _ : state) {
        if (!InspectMp4(path.c_str(), brand.data(), brand.size(), &size, &seconds, &rate, &width, &height))
            state.SkipWithError("not an MP4 file");
    }
}

} // namespace
} // namespace zdt

int main(int count, char** arguments) {
    benchmark::Initialize(&count, arguments);
    for (int index = 1; index < count; ++index) {
        const std::string path = arguments[index];
        benchmark::RegisterBenchmark(path.c_str(), [path](benchmark::State& state) { zdt::inspect(state, path); });
    }
    benchmark::RunSpecifiedBenchmarks();
}
