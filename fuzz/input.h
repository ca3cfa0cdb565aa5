#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

/// What the fuzz targets share: the input in parts, a scratch folder, and the check whose failure is a finding.
namespace zdt::fuzz {

/// Ends the run with a finding, naming the condition, unless it holds.
#define ZDT_FUZZ_CHECK(condition)                                                                                      \
    ((condition) ? static_cast<void>(0) : ::zdt::fuzz::checkFailed(#condition, __FILE__, __LINE__))

[[noreturn]] inline void checkFailed(const char* condition, const char* file, int line) {
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
    std::abort();
}

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Cuts a text at its first `mark`; the second part is empty without one.
inline std::pair<std::string_view, std::string_view> cutAt(std::string_view text, char mark) {
    const std::size_t place = text.find(mark);
    return {text.substr(0, place), place == std::string_view::npos ? std::string_view() : text.substr(place + 1)};
}

/// Bytes taken one after the other; behind the last come zeros.
class Bytes {
public:
    explicit Bytes(std::string_view bytes)
        : _rest(bytes) {}

    [[nodiscard]] bool isEmpty() const { return _rest.empty(); }

    unsigned next() { return _rest.empty() ? 0 : static_cast<unsigned char>(take(1).front()); }

    /// A number from 0 to `limit` - 1, of one byte; 0 for a limit of 0.
    std::size_t below(std::size_t limit) { return limit == 0 ? 0 : next() % limit; }

    std::string_view take(std::size_t count) {
        const std::string_view taken = _rest.substr(0, count);
        _rest.remove_prefix(taken.size());
        return taken;
    }

private:
    std::string_view _rest;
};

/// A folder for the length of the process, in `TMPDIR`: `fuzz/run` makes one in memory and removes it.
class Scratch {
public:
    Scratch() {
        const char* const parent = std::getenv("TMPDIR");
        std::string folder = std::string(parent ? parent : "/tmp") + "/zdt-fuzz-XXXXXX";
        ZDT_FUZZ_CHECK(::mkdtemp(folder.data()));
        _path = folder + "/";
    }
    ~Scratch() { std::filesystem::remove_all(_path); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    [[nodiscard]] std::string path(const std::string& below = {}) const { return _path + below; }

    /// Writes a file into a folder that is there, and gives its path.
    std::string write(const std::string& below, std::string_view content) const {
        std::string file = path(below);
        std::FILE* const stream = std::fopen(file.c_str(), "wb");
        ZDT_FUZZ_CHECK(stream);
        ZDT_FUZZ_CHECK(std::fwrite(content.data(), 1, content.size(), stream) == content.size());
        ZDT_FUZZ_CHECK(std::fclose(stream) == 0);
        return file;
    }

private:
    std::string _path;
};

} // namespace zdt::fuzz

/// What libFuzzer calls with each input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
