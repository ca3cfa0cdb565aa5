#pragma once

#include "assets/icons/material.h"

#include <array>
#include <cstddef>
#include <cstdint>

/// The colours of the weather in each visual language.
namespace zdt::assets {

enum class Sky : std::uint8_t { clear, hot, cold, grey, rain, storm, night, fog, haze, dust, wind, unknown };

/// The tones of what is in the air.
struct Air {
    Shade fair, fairBehind; ///< Clouds, the nearer and the farther.
    Shade storm, stormBehind;
    Shade night, nightBehind;
    Shade sun, moon, bolt;
    Shade rain, dust;
};

constexpr std::size_t skyCount = 12;
constexpr std::size_t languageCount = 3;

/// In the order of `Sky`; for paper, dune and aurora.
inline constexpr std::array<std::array<Shade, languageCount>, skyCount> skyTones{{
    {{{0xff5fb0d6, 0xff5fb0d6}, {0xff8db9cf, 0xfff8dfae}, {0xff2f8dff, 0xff7fdcff}}},
    {{{0xffe9834f, 0xffe9834f}, {0xffe8774a, 0xfffbd07a}, {0xffff6a4d, 0xffffc24a}}},
    {{{0xff5d86bd, 0xff5d86bd}, {0xff6f86b4, 0xffd9d3de}, {0xff3a63d8, 0xff86b8f6}}},
    {{{0xff8a9daa, 0xff8a9daa}, {0xff9d98a4, 0xffe9cfb4}, {0xff6584b4, 0xffa9c2e0}}},
    {{{0xff557a96, 0xff557a96}, {0xff5d6786, 0xffb39a9c}, {0xff2f5088, 0xff5f88c0}}},
    {{{0xff474f70, 0xff474f70}, {0xff4b4463, 0xffa37a86}, {0xff242a63, 0xff6a62b8}}},
    {{{0xff2f3f66, 0xff2f3f66}, {0xff3b3560, 0xffa1668a}, {0xff131a4e, 0xff4b4fb4}}},
    {{{0xff93a3a6, 0xff93a3a6}, {0xff9fa1a4, 0xffe0d0bc}, {0xff647f9b, 0xffa6bacb}}},
    {{{0xffb9a583, 0xffb9a583}, {0xffc09a78, 0xfff2d6a6}, {0xff8f86a0, 0xffe2bd92}}},
    {{{0xffc18f4c, 0xffc18f4c}, {0xffb9713a, 0xfff0c27a}, {0xffb5703c, 0xfff0bd66}}},
    {{{0xff3f9c97, 0xff3f9c97}, {0xff7fa79d, 0xfff0dcb0}, {0xff1f9fb4, 0xff7fddca}}},
    {{{0xff7f8a94, 0xff7f8a94}, {0xff9c8f8a, 0xffdcc9b4}, {0xff66748f, 0xffaab8cc}}},
}};

inline constexpr std::array<Air, languageCount> airTones{{
    {.fair = {0xfffffdf6, 0xfffffdf6},
     .fairBehind = {0xffd9e6ea, 0xffd9e6ea},
     .storm = {0xffc9d3dc, 0xffc9d3dc},
     .stormBehind = {0xff93a4b4, 0xff93a4b4},
     .night = {0xff8f9fc4, 0xff8f9fc4},
     .nightBehind = {0xff5c6d98, 0xff5c6d98},
     .sun = {0xfff4bd3e, 0xfff4bd3e},
     .moon = {0xfff8e3a0, 0xfff8e3a0},
     .bolt = {0xfff6c445, 0xfff6c445},
     .rain = {0xffcfe9f2, 0xffcfe9f2},
     .dust = {0xfff7e6c2, 0xfff7e6c2}},
    {.fair = {0xfffffaf0, 0xfff6d9b8},
     .fairBehind = {0xfffbe8d2, 0xffe0b79c},
     .storm = {0xfffaeee6, 0xffcbaeac},
     .stormBehind = {0xffcbb4b6, 0xff8f7686},
     .night = {0xffb9a0be, 0xff7a5a86},
     .nightBehind = {0xff8f76a2, 0xff5d4474},
     .sun = {0xffffe08a, 0xfff39a3c},
     .moon = {0xfffff0cc, 0xfff2c48c},
     .bolt = {0xffffe79a, 0xfff7a83a},
     .rain = {0xccfff3e6, 0xfffff6ec},
     .dust = {0xfffdeccb, 0xfff5d8a4}},
    {.fair = {0xffffffff, 0xffcfe6ff},
     .fairBehind = {0xfff0f7ff, 0xff9cc6f4},
     .storm = {0xffeef2ff, 0xffa3b3e2},
     .stormBehind = {0xffb4bfe6, 0xff5f6fb4},
     .night = {0xffc3c8ff, 0xff6c70d0},
     .nightBehind = {0xff8d92e6, 0xff4446a4},
     .sun = {0xfffff0a0, 0xffffa82e},
     .moon = {0xfffffbe0, 0xffffd98a},
     .bolt = {0xfffff2a0, 0xffffb02e},
     .rain = {0x8cffffff, 0xffffffff},
     .dust = {0xfffff0d0, 0xffffe0a8}},
}};

constexpr Shade skyTone(Sky sky, Language language) {
    return skyTones[static_cast<std::size_t>(sky)][static_cast<std::size_t>(language)];
}

constexpr const Air& airTone(Language language) {
    return airTones[static_cast<std::size_t>(language)];
}

} // namespace zdt::assets
