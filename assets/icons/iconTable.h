#pragma once

#include "assets/art/glyphs.h"

#include <array>
#include <string_view>

/// Which glyph an application's icon bears.
namespace zdt::assets {

struct IconRow {
    std::string_view word; ///< In the icon's file name, lower-cased.
    Glyph glyph;
};

/// The first row whose word is found counts, so that longer words stand before those that they hold.
inline constexpr auto iconTable = std::to_array<IconRow>({
    {"dialtacts", Glyph::phone},
    {"voicedialer", Glyph::microphone},
    {"dialer", Glyph::phone},
    {"peopleactivity", Glyph::people},
    {"contacts", Glyph::person},
    {"findmyphone", Glyph::place},
    {"phonemanager", Glyph::shield},
    {"phoneservice", Glyph::headset},
    {"soundrecorder", Glyph::microphone},
    {"recorder", Glyph::recording},
    {"phone.png", Glyph::phone},
    {"browser", Glyph::globe},
    {"calculator", Glyph::calculator},
    {"calendar", Glyph::calendar},
    {"camera", Glyph::camera},
    {"cellbroadcast", Glyph::broadcast},
    {"deskclock", Glyph::clock},
    {"documents", Glyph::folder},
    {"filemanager", Glyph::folder},
    {"email", Glyph::envelope},
    {"fmradio", Glyph::radio},
    {"gallery", Glyph::photo},
    {"livepicker", Glyph::photo},
    {"inputmethod", Glyph::keyboard},
    {"mms", Glyph::message},
    {"music", Glyph::note},
    {"karaoke", Glyph::microphone},
    {"downloads", Glyph::download},
    {"quicksearch", Glyph::search},
    {"magnifier", Glyph::search},
    {"settings", Glyph::gear},
    {"stk", Glyph::simCard},
    {"flashlight", Glyph::torch},
    {"video", Glyph::film},
    {"backup", Glyph::cloudUp},
    {"cloud", Glyph::cloud},
    {"clone", Glyph::copies},
    {"compass", Glyph::compass},
    {"game", Glyph::gamepad},
    {"health", Glyph::heart},
    {"mirror", Glyph::mirror},
    {"notepad", Glyph::notepad},
    {"power", Glyph::battery},
    {"remote", Glyph::remote},
    {"ringtones", Glyph::bell},
    {"theme", Glyph::paints},
    {"tips", Glyph::bulb},
    {"weather", Glyph::weather},
    {"translator", Glyph::languages},
    {"trustspace", Glyph::locked},
    {"vassistant", Glyph::microphone},
    {"wallet", Glyph::wallet},
    {"forum", Glyph::forum},
    {"smarthome", Glyph::house},
    {"members", Glyph::star},
    {"reader", Glyph::book},
    {"shop", Glyph::bag},
    {"market", Glyph::bag},
    {"lifeservice", Glyph::place},
    {"updater", Glyph::updates},
});

} // namespace zdt::assets
