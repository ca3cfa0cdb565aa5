#include "store/themeResource.h"
#include "support/files.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

/// Opening a big theme of generation 9, beside a loop that opens each of the theme's files and reads 24 bytes from it.
namespace zdt {
namespace {

/// A store with the theme "T", for the length of the run.
class Store {
public:
    Store() {
        std::string folder = "/tmp/zdt-bench-XXXXXX";
        if (!::mkdtemp(folder.data()))
            throw std::runtime_error("no temporary folder");
        _root = folder + "/";
        std::filesystem::create_directory_symlink(ZDT_TEMPLATES_DIR "default9.1", _root + "default9.1");
        const auto theme = ThemeResource::createTheme("T", 2, 0, false, true, _root);
        if (!theme || !theme->saveSettings())
            throw std::runtime_error("no theme");
        for (const auto& entry : std::filesystem::recursive_directory_iterator(_root + "res/T")) {
            if (entry.is_regular_file())
                _files.push_back(entry.path().string());
        }
    }
    ~Store() { std::filesystem::remove_all(_root); }
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    [[nodiscard]] const std::string& root() const { return _root; }
    [[nodiscard]] const std::vector<std::string>& files() const { return _files; }

private:
    std::string _root;
    std::vector<std::string> _files;
};

const Store& store() {
    static const Store instance;
    return instance;
}

void openTheme(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(ThemeResource::openTheme("T", true, store().root()));
}

void readHeaders(benchmark::State& state) {
    for (auto _ : state) {
        for (const std::string& path : store().files()) {
            std::array<char, 24> header{};
            if (std::FILE* file = std::fopen(path.c_str(), "rb")) {
                benchmark::DoNotOptimize(std::fread(header.data(), 1, header.size(), file));
                std::fclose(file);
            }
        }
    }
    state.counters["files"] = static_cast<double>(store().files().size());
}

BENCHMARK(openTheme)->Unit(benchmark::kMicrosecond);
BENCHMARK(readHeaders)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace zdt

BENCHMARK_MAIN();
