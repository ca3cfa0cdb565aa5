#include "common/fixtures.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace zdt::test {

namespace fs = std::filesystem;

namespace {

std::string bigEndian(std::uint32_t value, int bytes) {
    std::string text;
    for (int shift = (bytes - 1) * 8; shift >= 0; shift -= 8)
        text += static_cast<char>(value >> shift & 0xff);
    return text;
}

} // namespace

TemporaryFolder::TemporaryFolder() {
    std::string name = (fs::temp_directory_path() / "zdt-test-XXXXXX").string();
    if (!::mkdtemp(name.data()))
        throw std::runtime_error("no temporary folder");
    _path = name + "/";
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code error;
    fs::remove_all(_path, error);
}

std::string TemporaryFolder::write(const std::string& below, std::string_view content) const {
    const fs::path file = _path + below;
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
    return file.string();
}

std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string pngHeader(std::uint32_t width, std::uint32_t height) {
    using namespace std::string_literals;
    return "\x89PNG\r\n\x1a\n"s + bigEndian(13, 4) + "IHDR" + bigEndian(width, 4) + bigEndian(height, 4) +
           "\x08\x06\0\0\0"s;
}

std::string jpegHeader(std::uint16_t width, std::uint16_t height) {
    using namespace std::string_literals;
    const std::string application = "\xff\xe0"s + bigEndian(6, 2) + "JFIF";
    const std::string frame = "\xff\xc0"s + bigEndian(17, 2) + "\x08" + bigEndian(height, 2) + bigEndian(width, 2);
    return "\xff\xd8"s + application + frame;
}

} // namespace zdt::test

/// QtGui loads its JPEG plugin while the program runs, and the sanitizer's leak check then crashes on the thread-local
/// variables of that library unless it leaves them alone.
extern "C" const char* __asan_default_options();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __asan_default_options() { // NOLINT(bugprone-reserved-identifier)
    return "intercept_tls_get_addr=0";
}
