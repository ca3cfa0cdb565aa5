#include "model/resNode.h"
#include "store/themeResource.h"
#include "support/files.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// Setting the shared highlight colour of a big theme, saving included, beside the bare writing of the same files'
/// bytes.
namespace zdt {
namespace {

const KeyPath group{"commonSetting", "dial"};
constexpr const char* item = "highlight color";

/// A store with the theme "T", open for the length of the run. It doesn't lie in /tmp, which may be memory, and where
/// compilers leave thousands of deleted files behind: for minutes ext4 doesn't use their numbers again, and searches
/// long for the number of each new file.
class OpenTheme {
public:
    OpenTheme() {
        std::string folder = "/var/tmp/zdt-bench-XXXXXX";
        if (!::mkdtemp(folder.data()))
            throw std::runtime_error("no temporary folder");
        _root = folder + "/";
        std::filesystem::create_directory_symlink(ZDT_TEMPLATES_DIR "default9.1", _root + "default9.1");
        _theme = ThemeResource::createTheme("T", 2, 0, false, true, _root);
        if (!_theme || !set("#123456"))
            throw std::runtime_error("no theme");
        std::set<std::string> paths;
        for (const ResNode* source : _theme->simpleSources(group, item))
            paths.insert(source->parent()->nodeDirectory() + "theme.xml");
        for (const std::string& path : paths)
            _files.emplace_back(path, readFile(path, maxBytes).value());
    }
    ~OpenTheme() {
        _theme.reset();
        std::filesystem::remove_all(_root);
    }
    OpenTheme(const OpenTheme&) = delete;
    OpenTheme& operator=(const OpenTheme&) = delete;

    [[nodiscard]] bool set(const std::string& colour) {
        return _theme->setSimpleValue(group, item, colour) == returnCode::success && _theme->applySimple(group, item);
    }
    /// The paths of the files that this writes, each with its bytes.
    [[nodiscard]] const std::vector<std::pair<std::string, std::string>>& files() const { return _files; }

private:
    static constexpr std::uint64_t maxBytes = 1 << 20;

    std::string _root;
    std::unique_ptr<ThemeResource> _theme;
    std::vector<std::pair<std::string, std::string>> _files;
};

OpenTheme& theme() {
    static OpenTheme instance;
    return instance;
}

void setSimple(benchmark::State& state) {
    constexpr std::array colours{"#123456", "#abcdef"};
    std::size_t turn = 0;
    for (auto _ : state) {
        if (!theme().set(colours[++turn % colours.size()]))
            state.SkipWithError("it couldn't be set");
    }
}

void writeBytes(benchmark::State& state) {
    std::size_t bytes = 0;
    for (const auto& [path, content] : theme().files())
        bytes += content.size();
    for (auto _ : state) {
        for (const auto& [path, content] : theme().files()) {
            if (std::FILE* file = std::fopen(path.c_str(), "wb")) {
                benchmark::DoNotOptimize(std::fwrite(content.data(), 1, content.size(), file));
                std::fclose(file);
            }
        }
    }
    state.counters["files"] = static_cast<double>(theme().files().size());
    state.counters["bytes"] = static_cast<double>(bytes);
}

/// Few, so that the files that they replace don't slow the search for numbers down, either.
constexpr int editsInARow = 3;

BENCHMARK(setSimple)->Unit(benchmark::kMicrosecond)->Iterations(editsInARow);
BENCHMARK(writeBytes)->Unit(benchmark::kMicrosecond)->Iterations(editsInARow);

} // namespace
} // namespace zdt

BENCHMARK_MAIN();
