#pragma once

#include "assets/art/glyphs.h"
#include "assets/art/palette.h"

#include <array>
#include <string_view>

/// The plain pictures of controls by name.
namespace zdt::assets {

enum class SymbolShape {
    bare, ///< The glyph alone.
    disc, ///< The glyph on a disc.
    card, ///< The glyph on a rounded square.
    drop, ///< The glyph on a drop whose tip points to the right.
    glow, ///< A disc that fades out.
    ring, ///< A ring that fades out.
};

struct SymbolRow {
    std::string_view name;
    SymbolShape shape;
    int side; ///< Pixels, where the theme asks for no size.
    QRgb ground;
    QRgb sign = palette::clear;
    Glyph glyph = Glyph::none;
};

inline constexpr auto symbolTable = [] {
    using namespace palette;
    using enum SymbolShape;
    return std::to_array<SymbolRow>({
        // The launcher.
        {"btn_check_on.png", disc, 57, accent, paper, Glyph::check},
        {"folder_add_icon.png", card, 168, 0x80ffffff, grey, Glyph::plus},
        {"ic_allapps.png", disc, 192, paperVeil, ink, Glyph::grid},
        {"ic_allapps_pressed.png", disc, 192, field, accent, Glyph::grid},
        {"ic_arrow.png", bare, 96, clear, grey, Glyph::chevronRight},
        {"launcher_edit_transition_box_current.png", bare, 192, clear, accent, Glyph::pagesBox},
        {"launcher_edit_transition_defult_current.png", bare, 192, clear, accent, Glyph::pagesPlain},
        {"launcher_edit_transition_filpover_current.png", bare, 192, clear, accent, Glyph::pagesFlip},
        {"launcher_edit_transition_page_current.png", bare, 192, clear, accent, Glyph::pagesCurl},
        {"launcher_edit_transition_prespective_current.png", bare, 192, clear, accent, Glyph::pagesPerspective},
        {"launcher_edit_transition_rotate_current.png", bare, 192, clear, accent, Glyph::pagesRotate},
        {"launcher_edit_transition_squeeze_current.png", bare, 192, clear, accent, Glyph::pagesSqueeze},
        {"launcher_edit_transition_windmill_current.png", bare, 192, clear, accent, Glyph::pagesWindmill},
        {"widget_resize_handle_horizontal.png", disc, 72, accent, paper, Glyph::arrowsAcross},
        {"widget_resize_handle_vertical.png", disc, 72, accent, paper, Glyph::arrowsDown},
        {"ic_sysbar_docked_zendro.png", bare, 36, clear, grey, Glyph::split},

        // The recent tasks and the volume.
        {"zd_recents_lock.png", disc, 96, paperVeil, ink, Glyph::locked},
        {"zd_recents_unlock.png", disc, 96, paperVeil, ink, Glyph::unlocked},
        {"zd_recents_dismiss.png", disc, 96, paperVeil, ink, Glyph::cross},
        {"zd_recents_close_all.png", disc, 160, paperVeil, ink, Glyph::cross},
        {"zd_recents_close_all_press.png", disc, 160, field, accent, Glyph::cross},
        {"ic_onekey_widget_preview.png", disc, 288, accent, paper, Glyph::bolt},
        {"ic_onekey_widget_shortcut.png", disc, 192, accent, paper, Glyph::bolt},
        {"volume_arrow_down.png", bare, 72, clear, grey, Glyph::chevronDown},
        {"volume_arrow_up.png", bare, 72, clear, grey, Glyph::chevronUp},

        // Contacts.
        {"fastscroll_label_phonebook_ovui.png", drop, 156, accent},
        {"fastscroll_label_phonebook_ovui_null.png", drop, 156, line},
        {"fastscroll_label_phonebook_ovui_icon.png", drop, 156, accent, paper, Glyph::person},
        {"fastscroll_label_phonebook_ovui_null_icon.png", drop, 156, line, paper, Glyph::person},
        {"ic_contacts_calllog_hd.png", bare, 36, clear, grey, Glyph::highDefinition},
        {"ic_sync_anim_holo.png", bare, 96, clear, accent, Glyph::updates},

        // Messages.
        {"btn_gallery_check.png", disc, 54, accent, paper, Glyph::check},
        {"mic_st_widget_normal.png", disc, 1032, accent, paper, Glyph::microphone},
        {"mic_st_widget_speeching_glow.png", glow, 1032, accent},
        {"mic_st_widget_recording_bar_glow.png", ring, 688, accent},
        {"duoqu_point_off.png", disc, 16, line},
        {"duoqu_point_on.png", disc, 16, accent},
        {"ic_message_noti_zendro.png", bare, 96, clear, grey, Glyph::message},

        // What all applications share.
        {"scrubber_control_disabled_ovui.png", disc, 72, line, paper},
        {"scrubber_control_normal_ovui.png", disc, 72, accent, paper},
        {"scrubber_control_pressed_ovui.png", disc, 72, accentPressed, paper},
    });
}();

} // namespace zdt::assets
