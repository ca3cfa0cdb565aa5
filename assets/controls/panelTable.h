#pragma once

#include "assets/art/palette.h"
#include "canvas/screens/screenIcons.h"

#include <array>
#include <string_view>

/// The nine-patch pictures by name.
namespace zdt::assets {

enum class PanelShape {
    plain,          ///< All of it in one colour.
    box,            ///< With rounded corners, and the edge as a line around it.
    topBox,         ///< With rounded corners at the top.
    header,         ///< Hangs down from above, over a shadow.
    underlined,     ///< With the edge as a line at the bottom.
    overlined,      ///< With the edge as a line at the top.
    dropDown,       ///< Underlined, with an arrow at the right.
    receivedBubble, ///< A message with its tail at the left.
    sentBubble,     ///< A message with its tail at the right.
    bar,            ///< A rounded line along the longer side.
    loneSign,       ///< A sign in the edge's colour; only the margins around it stretch.
};

/// What a box is made of.
enum class Finish {
    flat,
    hollow, ///< A field to write in.
    lit,    ///< Bright itself, with light on its edge.
    card,   ///< Above a shadow.
    button, ///< Above a small shadow.
    held,   ///< A button that a finger presses.
    off,    ///< A button that does nothing, as large as the others.
};

/// Sizes in pixels, without the guide lines. Pictures grow if their corners need more.
struct PanelRow {
    std::string_view name;
    PanelShape shape;
    int width;
    int height;
    QRgb fill;
    QRgb edge = palette::clear;
    int radius = 0; ///< Of the corners where they are round.
    int paddingAcross = 0;
    int paddingDown = 0;
    Finish finish = Finish::flat;
    char16_t sign = 0;
};

inline constexpr auto panelTable = [] {
    using namespace palette;
    using enum PanelShape;
    using enum Finish;
    return std::to_array<PanelRow>({
        // The launcher.
        {"folder_open_shadow.9.png", box, 216, 216, glass, glassEdge, 72, 36, 36, lit},
        {"ic_edit_share.9.png", loneSign, 96, 96, clear, ink, 0, 0, 0, flat, sign::share},
        {"ic_edit_delete.9.png", loneSign, 96, 96, clear, ink, 0, 0, 0, flat, sign::deleteOutline},
        {"ic_mark.9.png", loneSign, 96, 96, clear, accent, 0, 0, 0, flat, sign::check},
        {"widget_resize_frame_holo.9.png", box, 120, 120, clear, accent, 42, 24, 24},

        // Contacts.
        {"profile_simple_card_background.9.png", box, 168, 168, paper, clear, 34, 36, 30, card},
        {"company_pop_background.9.png", box, 168, 168, paper, clear, 34, 36, 30, card},
        {"contact_detail_list_background.9.png", plain, 48, 48, paper},
        {"contact_dial_fun_menu.9.png", box, 132, 120, inkPressed, clear, 58, 24, 20},
        {"contact_dial_fun_menu_pressed.9.png", box, 132, 120, inkFaint, clear, 58, 24, 20},
        {"dialpad_button_press_state.9.png", box, 132, 120, inkPressed, clear, 58, 24, 20},
        {"fastscroll_familyname_normal.9.png", box, 132, 132, paper, clear, 26, 12, 12, card},
        {"contact_edit_text_background.9.png", underlined, 96, 96, clear, line, 0, 12, 12},
        {"contact_dialpad.9.png", overlined, 96, 96, field, line},
        {"contact_expander_close_ovui.9.png", loneSign, 72, 72, clear, grey, 0, 0, 0, flat, sign::expandMore},
        {"contact_expander_open_ovui.9.png", loneSign, 72, 72, clear, grey, 0, 0, 0, flat, sign::expandLess},
        {"contact_section_background.9.png", plain, 48, 72, field},
        {"contact_textfield_default_holo_light.9.png", underlined, 96, 96, clear, line, 0, 12, 12},
        {"csp_actionbar_number_circle.9.png", box, 72, 72, accent, clear, 33, 14, 12, lit},
        {"csp_actionbar_number_circle_light.9.png", box, 72, 72, paper, accent, 33, 14, 12},
        {"header_background4.9.png", header, 96, 144, paper},
        {"people_background.9.png", plain, 48, 48, paper},
        {"textfield_activated_holo_light.9.png", underlined, 96, 96, clear, accent, 0, 12, 12},

        // The phone.
        {"list_section_divider_ovui.9.png", underlined, 48, 48, field, line},
        {"preference_category_backgound.9.png", plain, 48, 72, field},

        // Messages.
        {"duoqu_has_botton_bg.9.png", box, 168, 168, paper, clear, 38, 36, 30, card},
        {"duoqu_no_button_bg.9.png", box, 168, 168, paper, clear, 38, 36, 30, card},
        {"duoqu_menu_bg.9.png", box, 144, 144, field, clear, 36, 24, 18, card},
        {"duoqu_toolbar_bg.9.png", overlined, 48, 144, field, line},
        {"line_split_bottom_ovui.9.png", underlined, 48, 12, clear, line},
        {"mms_messagelist_background.9.png", plain, 48, 48, paper},
        {"toolbar_bg.9.png", overlined, 48, 144, field, line},
        {"v_bg_1.9.png", receivedBubble, 156, 120, field, clear, 38, 30, 21},
        {"v_bg_2.9.png", sentBubble, 156, 120, ownMessage, clear, 38, 30, 21},
        {"v_bg_3.9.png", receivedBubble, 156, 120, fieldPressed, clear, 38, 30, 21},
        {"v_bg_4.9.png", sentBubble, 156, 120, 0xffc6e6c6, clear, 38, 30, 21},

        // The status bar.
        {"volume_popup.9.png", box, 192, 192, paper, clear, 48, 36, 30, card},

        // What all applications share.
        {"alphaindexerlistview_bg_label.9.png", box, 120, 120, accent, clear, 57, 24, 24, lit},
        {"bg_edittext_item.9.png", box, 96, 96, field, clear, 16, 24, 15, hollow},
        {"button_big_bg_stroked.9.png", box, 180, 120, clear, accent, 58, 36, 21},
        {"button_big_bg_stroked_disable.9.png", box, 180, 120, clear, accentSoft, 58, 36, 21},
        {"button_big_bg_stroked_pressed.9.png", box, 180, 120, accentFaint, accent, 58, 36, 21},
        {"button_small_bg_stroked.9.png", box, 132, 96, clear, accent, 46, 27, 15},
        {"button_small_bg_stroked_disable.9.png", box, 132, 96, clear, accentSoft, 46, 27, 15},
        {"button_small_bg_stroked_pressed.9.png", box, 132, 96, accentFaint, accent, 46, 27, 15},
        {"list_selector_background_focused_middle_ovui.9.png", plain, 48, 144, accentFaint},
        {"list_selector_background_focused_top_ovui.9.png", topBox, 120, 144, accentFaint, clear, 42},
        {"search_bg_actived.9.png", box, 132, 96, paper, accent, 45, 36, 15},
        {"search_bg_normal.9.png", box, 132, 96, field, clear, 45, 36, 15, hollow},
        {"textfield_bg_error.9.png", box, 96, 96, clear, danger, 16, 24, 15},
        {"textfield_default_linear_actived_ovui.9.png", underlined, 96, 96, clear, accent, 0, 12, 12},
        {"textfield_default_linear_ovui.9.png", underlined, 96, 96, clear, line, 0, 12, 12},
        {"textfield_default_bubble_ovui.9.png", box, 120, 96, field, clear, 42, 30, 15, hollow},
        {"textfield_search_default_ovui.9.png", box, 132, 96, field, clear, 45, 36, 15, hollow},
        {"background_ovui.9.png", plain, 48, 48, field},
        {"bg_scrollbar.9.png", bar, 12, 48, greyPressed},
        {"bg_scrollbar_horizontal.9.png", bar, 48, 12, greyPressed},
        {"spinner_menu.9.png", dropDown, 132, 96, clear, grey, 0, 12, 12, flat, sign::expandMore},
        {"btn_default_disabled_ovui.9.png", box, 132, 120, field, fieldPressed, 44, 30, 18, off},
        {"btn_default_normal_ovui.9.png", box, 132, 120, paper, inkPressed, 44, 30, 18, button},
        {"btn_default_pressed_ovui.9.png", box, 132, 120, 0xffdadada, clear, 44, 30, 18, held},
        {"expander_close_ovui.9.png", loneSign, 72, 72, clear, grey, 0, 0, 0, flat, sign::expandMore},
        {"expander_open_ovui.9.png", loneSign, 72, 72, clear, grey, 0, 0, 0, flat, sign::expandLess},
        {"popup_full_bright_ovui.9.png", box, 180, 180, paperVeil, clear, 48, 36, 30, card},
        {"popup_full_bright_opaque_ovui.9.png", box, 180, 180, paper, clear, 48, 36, 30, card},
        {"toast_frame_ovui.9.png", box, 132, 96, inkVeil, clear, 38, 36, 15, button},
    });
}();

} // namespace zdt::assets
