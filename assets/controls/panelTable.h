#pragma once

#include "assets/art/glyphs.h"
#include "assets/art/palette.h"

#include <array>
#include <string_view>

/// The nine-patch pictures by name.
namespace zdt::assets {

enum class PanelShape {
    filled,         ///< All of it in one colour.
    rounded,        ///< With rounded corners, and the edge as a line around it.
    raised,         ///< A card above a shadow.
    underlined,     ///< With the edge as a line at the bottom.
    overlined,      ///< With the edge as a line at the top.
    dropDown,       ///< Underlined, with a triangle at the right.
    receivedBubble, ///< A message with its tail at the left.
    sentBubble,     ///< A message with its tail at the right.
    sign,           ///< A glyph in the edge's colour; only the margins around it stretch.
};

/// Sizes in pixels, without the guide lines.
struct PanelRow {
    std::string_view name;
    PanelShape shape;
    int width;
    int height;
    int radius; ///< Of the corners, which don't stretch.
    int padding;
    QRgb fill;
    QRgb edge = palette::clear;
    Glyph glyph = Glyph::none;
};

inline constexpr auto panelTable = [] {
    using namespace palette;
    using enum PanelShape;
    return std::to_array<PanelRow>({
        // The launcher.
        {"folder_open_shadow.9.png", rounded, 216, 216, 72, 36, glass, glassEdge},
        {"ic_edit_share.9.png", sign, 96, 96, 0, 0, clear, ink, Glyph::share},
        {"ic_edit_delete.9.png", sign, 96, 96, 0, 0, clear, ink, Glyph::trash},
        {"ic_mark.9.png", sign, 96, 96, 0, 0, clear, accent, Glyph::check},
        {"widget_resize_frame_holo.9.png", rounded, 96, 96, 24, 24, clear, accent},

        // Contacts.
        {"profile_simple_card_background.9.png", raised, 120, 120, 16, 24, paper},
        {"company_pop_background.9.png", raised, 120, 120, 16, 24, paper},
        {"contact_detail_list_background.9.png", filled, 48, 48, 0, 0, paper},
        {"contact_dial_fun_menu.9.png", rounded, 120, 120, 24, 24, inkPressed},
        {"contact_dial_fun_menu_pressed.9.png", rounded, 120, 120, 24, 24, inkFaint},
        {"dialpad_button_press_state.9.png", rounded, 96, 96, 24, 12, inkPressed},
        {"fastscroll_familyname_normal.9.png", raised, 120, 120, 16, 24, paper},
        {"contact_edit_text_background.9.png", underlined, 96, 96, 0, 12, clear, line},
        {"contact_dialpad.9.png", overlined, 96, 96, 0, 0, field, line},
        {"contact_expander_close_ovui.9.png", sign, 72, 72, 0, 0, clear, grey, Glyph::chevronDown},
        {"contact_expander_open_ovui.9.png", sign, 72, 72, 0, 0, clear, grey, Glyph::chevronUp},
        {"contact_section_background.9.png", filled, 48, 72, 0, 0, field},
        {"contact_textfield_default_holo_light.9.png", underlined, 96, 96, 0, 12, clear, line},
        {"csp_actionbar_number_circle.9.png", rounded, 72, 72, 34, 12, accent},
        {"csp_actionbar_number_circle_light.9.png", rounded, 72, 72, 34, 12, paper, accent},
        {"header_background4.9.png", underlined, 96, 144, 0, 0, paper, line},
        {"people_background.9.png", filled, 48, 48, 0, 0, paper},
        {"textfield_activated_holo_light.9.png", underlined, 96, 96, 0, 12, clear, accent},

        // The phone.
        {"list_section_divider_ovui.9.png", underlined, 48, 48, 0, 0, field, line},
        {"preference_category_backgound.9.png", filled, 48, 72, 0, 0, field},

        // Messages.
        {"duoqu_has_botton_bg.9.png", raised, 144, 144, 24, 24, paper},
        {"duoqu_no_button_bg.9.png", raised, 144, 144, 24, 24, paper},
        {"duoqu_menu_bg.9.png", raised, 120, 120, 12, 18, field},
        {"duoqu_toolbar_bg.9.png", overlined, 48, 144, 0, 0, field, line},
        {"line_split_bottom_ovui.9.png", underlined, 48, 12, 0, 0, clear, line},
        {"mms_messagelist_background.9.png", filled, 48, 48, 0, 0, paper},
        {"toolbar_bg.9.png", overlined, 48, 144, 0, 0, field, line},
        {"v_bg_1.9.png", receivedBubble, 144, 120, 30, 24, field},
        {"v_bg_2.9.png", sentBubble, 144, 120, 30, 24, ownMessage},
        {"v_bg_3.9.png", receivedBubble, 144, 120, 30, 24, fieldPressed},
        {"v_bg_4.9.png", sentBubble, 144, 120, 30, 24, 0xffc6e6c6},

        // The status bar.
        {"volume_popup.9.png", raised, 144, 144, 30, 24, paper},

        // What all applications share.
        {"alphaindexerlistview_bg_label.9.png", rounded, 120, 120, 58, 24, accent},
        {"bg_edittext_item.9.png", rounded, 96, 96, 16, 18, field},
        {"button_big_bg_stroked.9.png", rounded, 180, 120, 58, 24, clear, accent},
        {"button_big_bg_stroked_disable.9.png", rounded, 180, 120, 58, 24, clear, accentSoft},
        {"button_big_bg_stroked_pressed.9.png", rounded, 180, 120, 58, 24, accentFaint, accent},
        {"button_small_bg_stroked.9.png", rounded, 120, 84, 40, 18, clear, accent},
        {"button_small_bg_stroked_disable.9.png", rounded, 120, 84, 40, 18, clear, accentSoft},
        {"button_small_bg_stroked_pressed.9.png", rounded, 120, 84, 40, 18, accentFaint, accent},
        {"list_selector_background_focused_middle_ovui.9.png", filled, 48, 144, 0, 0, accentFaint},
        {"list_selector_background_focused_top_ovui.9.png", rounded, 96, 144, 16, 0, accentFaint},
        {"search_bg_actived.9.png", rounded, 144, 96, 46, 24, paper, accent},
        {"search_bg_normal.9.png", rounded, 144, 96, 46, 24, field},
        {"textfield_bg_error.9.png", rounded, 96, 96, 16, 18, clear, danger},
        {"textfield_default_linear_actived_ovui.9.png", underlined, 96, 96, 0, 12, clear, accent},
        {"textfield_default_linear_ovui.9.png", underlined, 96, 96, 0, 12, clear, line},
        {"textfield_default_bubble_ovui.9.png", rounded, 144, 96, 30, 24, field, line},
        {"textfield_search_default_ovui.9.png", rounded, 144, 96, 46, 24, field},
        {"background_ovui.9.png", filled, 48, 48, 0, 0, field},
        {"bg_scrollbar.9.png", rounded, 12, 48, 5, 0, greyPressed},
        {"bg_scrollbar_horizontal.9.png", rounded, 48, 12, 5, 0, greyPressed},
        {"spinner_menu.9.png", dropDown, 120, 96, 0, 12, clear, grey},
        {"btn_default_disabled_ovui.9.png", rounded, 120, 120, 24, 24, field, fieldPressed},
        {"btn_default_normal_ovui.9.png", rounded, 120, 120, 24, 24, paper, line},
        {"btn_default_pressed_ovui.9.png", rounded, 120, 120, 24, 24, fieldPressed, line},
        {"expander_close_ovui.9.png", sign, 72, 72, 0, 0, clear, grey, Glyph::chevronDown},
        {"expander_open_ovui.9.png", sign, 72, 72, 0, 0, clear, grey, Glyph::chevronUp},
        {"popup_full_bright_ovui.9.png", raised, 144, 144, 30, 24, paperVeil},
        {"popup_full_bright_opaque_ovui.9.png", raised, 144, 144, 30, 24, paper},
        {"toast_frame_ovui.9.png", rounded, 120, 120, 48, 30, inkVeil},
    });
}();

} // namespace zdt::assets
