#pragma once

#include "assets/art/palette.h"
#include "assets/controls/signs.h"
#include "canvas/screens/screenIcons.h"

#include <array>
#include <string_view>

/// The plain pictures of controls by name.
namespace zdt::assets {

enum class SymbolShape {
    bare,    ///< The sign alone.
    drawing, ///< The drawing alone, in larger lines.
    disc, ///< The sign on a disc that fills the picture, in all languages, as the ring that the phone shows without it.
    mark, ///< The drawing on a small ground that fills the picture.
    tile, ///< The sign on a ground as large as an icon's.
    button,  ///< The sign on a tile above a shadow.
    pointer, ///< The sign on a label that points to the right.
    knob,    ///< A small ground with a smaller one of the sign's colour in it.
    halo,    ///< A knob within a pale ground.
    glow,    ///< A disc that fades out.
    ring,    ///< A ring that fades out.
};

struct SymbolRow {
    std::string_view name;
    SymbolShape shape;
    int side; ///< Pixels, where the theme asks for no size.
    QRgb ground;
    QRgb colour = palette::clear; ///< Of the sign.
    char16_t sign = 0;
    LineSign drawing = {};
};

/// Two pages of the home screen on their way, each after the way of its name: one that comes and one that leaves.
namespace pages {
inline constexpr LineSign box{"M26 8 L42 13 V35 L26 40 Z", "M20 8 L6 13 V35 L20 40 Z"};
inline constexpr LineSign plain{"M22 9 H42 V39 H22 Z", "M15 9 H6 V39 H15"};
inline constexpr LineSign flip{"M19 11 L29 6 V42 L19 37 Z", "M13 11 H6 V37 H13 M35 11 H42 V37 H35"};
inline constexpr LineSign curl{"M10 7 H38 V25 C30 24 25 29 24 41 H10 Z M38 30.5 L30 41 C30.5 35 32.5 31 38 30.5 Z", ""};
inline constexpr LineSign perspective{"M28 14 L42 8 V40 L28 34 Z", "M20 14 L6 8 V40 L20 34 Z"};
inline constexpr LineSign rotate{"M31.6 10 L46.2 13.5 L40.6 36.9 L26 33.4 Z",
                                 "M11 11.3 L1.77 13.5 L7.37 36.9 L16.6 34.6"};
inline constexpr LineSign squeeze{"M23 9 H42 V39 H23 Z", "M6 9 V39 M15 9 V39"};
inline constexpr LineSign windmill{"M26.5 6 H38 V21 H26.5 Z M21.5 42 H10 V27 H21.5 Z",
                                   "M42 26.5 V38 H27 V26.5 Z M6 21.5 V10 H21 V21.5 Z"};
} // namespace pages

inline constexpr LineSign arrowsAcross{"", "M17 14 L7 24 L17 34 M31 14 L41 24 L31 34"};
inline constexpr LineSign arrowsDown{"", "M14 17 L24 7 L34 17 M14 31 L24 41 L34 31"};

inline constexpr auto symbolTable = [] {
    using namespace palette;
    using enum SymbolShape;
    constexpr QRgb pane = 0x4dffffff;
    return std::to_array<SymbolRow>({
        // The launcher.
        {"btn_check_on.png", disc, 57, accent, paper, sign::check},
        {"folder_add_icon.png", tile, 168, pane, paper, sign::add},
        {"ic_allapps.png", tile, 192, paperVeil, ink, sign::apps},
        {"ic_allapps_pressed.png", tile, 192, field, accent, sign::apps},
        {"ic_arrow.png", bare, 96, clear, grey, sign::chevronRight},
        {"launcher_edit_transition_box_current.png", drawing, 192, clear, accent, 0, pages::box},
        {"launcher_edit_transition_defult_current.png", drawing, 192, clear, accent, 0, pages::plain},
        {"launcher_edit_transition_filpover_current.png", drawing, 192, clear, accent, 0, pages::flip},
        {"launcher_edit_transition_page_current.png", drawing, 192, clear, accent, 0, pages::curl},
        {"launcher_edit_transition_prespective_current.png", drawing, 192, clear, accent, 0, pages::perspective},
        {"launcher_edit_transition_rotate_current.png", drawing, 192, clear, accent, 0, pages::rotate},
        {"launcher_edit_transition_squeeze_current.png", drawing, 192, clear, accent, 0, pages::squeeze},
        {"launcher_edit_transition_windmill_current.png", drawing, 192, clear, accent, 0, pages::windmill},
        {"widget_resize_handle_horizontal.png", mark, 72, accent, paper, 0, arrowsAcross},
        {"widget_resize_handle_vertical.png", mark, 72, accent, paper, 0, arrowsDown},
        {"ic_sysbar_docked_zendro.png", bare, 36, clear, grey, sign::splitscreen},

        // The recent tasks and the volume.
        {"zd_recents_lock.png", button, 96, paper, ink, sign::lock},
        {"zd_recents_unlock.png", button, 96, paper, ink, sign::lockOpen},
        {"zd_recents_dismiss.png", button, 96, paper, ink, sign::close},
        {"zd_recents_close_all.png", button, 160, paper, ink, sign::close},
        {"zd_recents_close_all_press.png", button, 160, fieldPressed, accent, sign::close},
        {"ic_onekey_widget_preview.png", tile, 288, accent, paper, sign::bolt},
        {"ic_onekey_widget_shortcut.png", tile, 192, accent, paper, sign::bolt},
        {"volume_arrow_down.png", bare, 72, clear, grey, sign::expandMore},
        {"volume_arrow_up.png", bare, 72, clear, grey, sign::expandLess},

        // Contacts.
        {"fastscroll_label_phonebook_ovui.png", pointer, 156, accent},
        {"fastscroll_label_phonebook_ovui_null.png", pointer, 156, line},
        {"fastscroll_label_phonebook_ovui_icon.png", pointer, 156, accent, paper, sign::person},
        {"fastscroll_label_phonebook_ovui_null_icon.png", pointer, 156, line, paper, sign::person},
        {"ic_contacts_calllog_hd.png", bare, 36, clear, grey, sign::hd},
        {"ic_sync_anim_holo.png", bare, 96, clear, accent, sign::sync},

        // Messages.
        {"btn_gallery_check.png", disc, 54, accent, paper, sign::check},
        {"mic_st_widget_normal.png", tile, 1032, accent, paper, sign::mic},
        {"mic_st_widget_speeching_glow.png", glow, 1032, accent},
        {"mic_st_widget_recording_bar_glow.png", ring, 688, accent},
        {"duoqu_point_off.png", mark, 16, line},
        {"duoqu_point_on.png", mark, 16, accent},
        {"ic_message_noti_zendro.png", bare, 96, clear, accent, sign::sms},

        // What all applications share.
        {"scrubber_control_disabled_ovui.png", knob, 72, line, paper},
        {"scrubber_control_normal_ovui.png", knob, 72, accent, paper},
        {"scrubber_control_pressed_ovui.png", halo, 72, accentPressed, paper},
    });
}();

} // namespace zdt::assets
