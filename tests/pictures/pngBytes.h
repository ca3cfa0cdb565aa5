#pragma once

#include "common/fixtures.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zdt::test {

/// The check sum of a PNG's chunk, four bytes, over its type and content.
inline std::string pngCheckSum(std::string_view chunk) {
    std::uint32_t sum = ~0U;
    for (const char byte : chunk) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ ((sum & 1) != 0 ? 0xedb88320U : 0);
    }
    sum = ~sum;
    return {static_cast<char>(sum >> 24), static_cast<char>(sum >> 16), static_cast<char>(sum >> 8),
            static_cast<char>(sum)};
}

/// A PNG with a faultless header of that size, and the beginning of its first pixels' chunk.
inline std::string pngStart(std::uint32_t width, std::uint32_t height) {
    const std::string header = pngHeader(width, height);
    constexpr std::size_t typePlace = 12; // behind the signature and the chunk's length
    return header + pngCheckSum(std::string_view(header).substr(typePlace)) + std::string("\0\0\x10\0IDAT\x78\xda", 10);
}

} // namespace zdt::test
