#pragma once

#include "canvas/screens/screenIcons.h"

#include <QImage>

#include <array>
#include <string_view>

/// The music control of a lock screen whose theme brings no pictures for it: white, over any wallpaper.
namespace zdt::assets {

enum class MusicFace {
    ground,  ///< Glass, without a sign.
    bare,    ///< A sign alone.
    pressed, ///< The same on a disc of glass.
    solid,   ///< A dark sign on a white disc.
};

struct MusicPicture {
    std::string_view file; ///< In the "res" folder beside the skin's.
    int side;              ///< Pixels of a screen 1080 wide, as the phone's own layout places it.
    MusicFace face;
    char32_t sign = 0;
};

/// The pressed face of next has two names, as documents use the one or the other.
inline constexpr std::array<MusicPicture, 8> musicPictures{{
    {"music_bg.png", 104, MusicFace::ground},
    {"music_next.png", 104, MusicFace::bare, sign::skipNext},
    {"music_next_pre.png", 104, MusicFace::pressed, sign::skipNext},
    {"music_next_press.png", 104, MusicFace::pressed, sign::skipNext},
    {"music_pause.png", 130, MusicFace::solid, sign::pause},
    {"music_play.png", 130, MusicFace::solid, sign::playArrow},
    {"music_pre.png", 104, MusicFace::bare, sign::skipPrevious},
    {"music_pre_press.png", 104, MusicFace::pressed, sign::skipPrevious},
}};

/// Needs a QGuiApplication; may be called on any thread.
[[nodiscard]] QImage drawMusicPicture(const MusicPicture& picture);

} // namespace zdt::assets
