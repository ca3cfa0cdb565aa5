#include "editor/fileWords.h"

namespace zdt {

namespace {

constexpr const char* between = " / ";
constexpr const char* times = " × ";

/// With a dot, however the system writes numbers.
std::string tenths(std::uint64_t tenth) {
    const std::string whole = std::to_string(tenth / 10);
    return tenth % 10 == 0 ? whole : whole + "." + std::to_string(tenth % 10);
}

std::string rangeText(std::uint32_t least, std::uint32_t end) {
    return std::to_string(least) + (end == least + 1 ? "" : "–" + std::to_string(end - 1));
}

} // namespace

std::string bytesText(std::uint64_t bytes) {
    constexpr std::uint64_t kilo = 1024;
    constexpr std::uint64_t mega = kilo * kilo;
    if (bytes < kilo)
        return std::to_string(bytes) + " B";
    // Rounded up, so that what is a little too large doesn't read like the limit.
    if (bytes < mega)
        return std::to_string((bytes + kilo - 1) / kilo) + " KB";
    return tenths((bytes * 10 + mega - 1) / mega) + " MB";
}

std::string pixelsText(const PictureSize& size) {
    return std::to_string(size.width) + times + std::to_string(size.height);
}

std::string sizesText(const std::vector<SizeRange>& sizes) {
    std::string text;
    for (const SizeRange& size : sizes)
        text += (text.empty() ? "" : between) + rangeText(size.minWidth, size.widthLimit) + times +
                rangeText(size.minHeight, size.heightLimit);
    return text;
}

std::string kindsText(std::uint32_t kinds) {
    std::string text;
    if (kinds & fileKind::png)
        text = "PNG";
    if (kinds & fileKind::jpeg)
        text += text.empty() ? "JPG" : between + std::string("JPG");
    return text;
}

} // namespace zdt
