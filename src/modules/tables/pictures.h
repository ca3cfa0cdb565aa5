#pragma once

#include "modules/tables/pictureRow.h"

#include <array>

/// The pictures of the phone applications, in the order in which they stand in the tree.
namespace zdt::tables {

/// Of the launcher.
inline constexpr std::array<PictureRow, 23> launcherPictures{{
    {"btn_check_on.png", generation9, 57},
    {"folder_add_icon.png", nowhere, 168},
    {"folder_open_shadow.9.png", nowhere},
    {"ic_allapps.png", nowhere, 192},
    {"ic_allapps_pressed.png", nowhere, 192},
    {"ic_edit_share.9.png", generations59},
    {"ic_arrow.png", generation5, 96},
    {"ic_mark.9.png", generation5},
    {"launcher_edit_transition_box_current.png", generation5, 192},
    {"launcher_edit_transition_defult_current.png", generation5, 192},
    {"launcher_edit_transition_filpover_current.png", generation5, 192},
    {"launcher_edit_transition_page_current.png", generation5, 192},
    {"launcher_edit_transition_prespective_current.png", generation5, 192},
    {"launcher_edit_transition_rotate_current.png", generation5, 192},
    {"launcher_edit_transition_squeeze_current.png", generation5, 192},
    {"launcher_edit_transition_windmill_current.png", generation5, 192},
    {"widget_resize_frame_holo.9.png", generation5},
    {"widget_resize_handle_horizontal.png", generation5},
    {"widget_resize_handle_vertical.png", generation5},
    {"zd_recents_lock.png", generations58, 96},
    {"ic_sysbar_docked_zendro.png", generations58, 36},
    {"ic_edit_delete.9.png", generations58},
    {"ic_edit_share.9.png", generations58},
}};

/// The pictures of the launcher that depend on the theme's language in generation 5: they are there for those made
/// under another interface than the Chinese one.
inline constexpr std::array<std::string_view, 14> overseasLauncherPictures{{
    "ic_arrow.png",
    "ic_edit_share.9.png",
    "ic_mark.9.png",
    "launcher_edit_transition_box_current.png",
    "launcher_edit_transition_defult_current.png",
    "launcher_edit_transition_filpover_current.png",
    "launcher_edit_transition_page_current.png",
    "launcher_edit_transition_prespective_current.png",
    "launcher_edit_transition_rotate_current.png",
    "launcher_edit_transition_squeeze_current.png",
    "launcher_edit_transition_windmill_current.png",
    "widget_resize_frame_holo.9.png",
    "widget_resize_handle_horizontal.png",
    "widget_resize_handle_vertical.png",
}};

/// Of the contacts application.
inline constexpr std::array<PictureRow, 49> contactsPictures{{
    {"profile_simple_card_background.9.png", nowhere},
    {"company_pop_background.9.png", nowhere},
    {"contact_detail_list_background.9.png", nowhere},
    {"contact_dial_fun_menu.9.png", nowhere},
    {"contact_dial_fun_menu_pressed.9.png", nowhere},
    {"dial_num_0_blk.png", nowhere},
    {"dial_num_0_blk_press.png", nowhere},
    {"dial_num_1_blk.png", nowhere},
    {"dial_num_1_blk_press.png", nowhere},
    {"dial_num_2_blk.png", nowhere},
    {"dial_num_2_blk_press.png", nowhere},
    {"dial_num_3_blk.png", nowhere},
    {"dial_num_3_blkpress.png", nowhere},
    {"dial_num_4_blk.png", nowhere},
    {"dial_num_4_blk_press.png", nowhere},
    {"dial_num_5_blk.png", nowhere},
    {"dial_num_5_blk_press.png", nowhere},
    {"dial_num_6_blk.png", nowhere},
    {"dial_num_6_blk_press.png", nowhere},
    {"dial_num_7_blk.png", nowhere},
    {"dial_num_7_blk_press.png", nowhere},
    {"dial_num_8_blk.png", nowhere},
    {"dial_num_8_blk_press.png", nowhere},
    {"dial_num_9_blk.png", nowhere},
    {"dial_num_9_blk_press.png", nowhere},
    {"dialpad_button_press_state.9.png", nowhere},
    {"fastscroll_familyname_normal.9.png", nowhere},
    {"jing.png", nowhere},
    {"jingpress.png", nowhere},
    {"xing.png", nowhere},
    {"xingpress.png", nowhere},
    {"profile_simple_card_background.9.png", generation9, anySize, landscape},
    {"contact_edit_text_background.9.png", generation9, anySize, nodpi},
    {"contact_dialpad.9.png", generation9},
    {"contact_expander_close_ovui.9.png", generation9},
    {"contact_expander_open_ovui.9.png", generation9},
    {"contact_section_background.9.png", generation9},
    {"contact_textfield_default_holo_light.9.png", generation9},
    {"csp_actionbar_number_circle.9.png", generation9},
    {"fastscroll_label_phonebook_ovui.png", generation9},
    {"fastscroll_label_phonebook_ovui_null.png", generation9},
    {"header_background4.9.png", generation9},
    {"people_background.9.png", generation9},
    {"textfield_activated_holo_light.9.png", generation9},
    {"csp_actionbar_number_circle_light.9.png", generations59},
    {"ic_contacts_calllog_hd.png", generations59, 36},
    {"fastscroll_label_phonebook_ovui_icon.png", generations58},
    {"fastscroll_label_phonebook_ovui_null_icon.png", generations58},
    {"ic_sync_anim_holo.png", generation5, 96},
}};

/// Of the phone application.
inline constexpr std::array<PictureRow, 2> phonePictures{{
    {"list_section_divider_ovui.9.png", generation9},
    {"preference_category_backgound.9.png", generations58, anySize, xxxhdpi},
}};

/// Of the call service, for left-to-right and for mirrored screens.
inline constexpr PictureRow telecomPicture{"ic_arrow.png", nowhere, 48, hdpi};
inline constexpr PictureRow mirroredTelecomPicture{"ic_arrow.png", nowhere, 48, mirroredHdpi};

/// Of the messaging application.
inline constexpr std::array<PictureRow, 19> mmsPictures{{
    {"btn_gallery_check.png", generations59, 54},
    {"mic_st_widget_normal.png", generations59, 1032},
    {"duoqu_has_botton_bg.9.png", generation9},
    {"duoqu_no_button_bg.9.png", generation9},
    {"duoqu_point_off.png", generation9, 16},
    {"duoqu_point_on.png", generation9, 16},
    {"duoqu_toolbar_bg.9.png", generation9},
    {"line_split_bottom_ovui.9.png", generation9},
    {"list_section_divider_ovui.9.png", generation9},
    {"mms_messagelist_background.9.png", generation9},
    {"toolbar_bg.9.png", generation9},
    {"v_bg_1.9.png", generation9},
    {"v_bg_2.9.png", generation9},
    {"ic_message_noti_zendro.png", generations58},
    {"mic_st_widget_speeching_glow.png", generations58},
    {"mic_st_widget_recording_bar_glow.png", generation5, 688},
    {"duoqu_menu_bg.9.png", nowhere},
    {"v_bg_3.9.png", nowhere},
    {"v_bg_4.9.png", nowhere},
}};

/// Of the status bar and the recent tasks.
inline constexpr std::array<PictureRow, 10> systemuiPictures{{
    {"zd_recents_close_all.png", nowhere, 160},
    {"zd_recents_close_all_press.png", nowhere, 160},
    {"ic_onekey_widget_preview.png", nowhere},
    {"ic_onekey_widget_shortcut.png", nowhere},
    {"volume_popup.9.png", nowhere},
    {"zd_recents_dismiss.png", generation9, 96},
    {"zd_recents_lock.png", generation9, 96},
    {"zd_recents_unlock.png", generation9, 96},
    {"volume_arrow_down.png", generation9, 72},
    {"volume_arrow_up.png", generation9, 72},
}};

/// Of the widgets that every application shares.
inline constexpr std::array<PictureRow, 35> commonSettingPictures{{
    {"alphaindexerlistview_bg_label.9.png", generations58},
    {"bg_edittext_item.9.png", generations58},
    {"button_big_bg_stroked.9.png", generations58},
    {"button_big_bg_stroked_disable.9.png", generations58},
    {"button_big_bg_stroked_pressed.9.png", generations58},
    {"button_small_bg_stroked.9.png", generations58},
    {"button_small_bg_stroked_disable.9.png", generations58},
    {"button_small_bg_stroked_pressed.9.png", generations58},
    {"list_selector_background_focused_middle_ovui.9.png", generations58},
    {"list_selector_background_focused_top_ovui.9.png", generations58},
    {"scrubber_control_disabled_ovui.png", generations58},
    {"scrubber_control_normal_ovui.png", generations58},
    {"scrubber_control_pressed_ovui.png", generations58},
    {"search_bg_actived.9.png", generations58},
    {"search_bg_normal.9.png", generations58},
    {"textfield_bg_error.9.png", generations58},
    {"textfield_default_linear_actived_ovui.9.png", generations58},
    {"textfield_default_linear_ovui.9.png", generations58},
    {"background_ovui.9.png", nowhere},
    {"bg_scrollbar.9.png", nowhere},
    {"bg_scrollbar_horizontal.9.png", nowhere},
    {"list_section_divider_ovui.9.png", nowhere},
    {"spinner_menu.9.png", nowhere},
    {"btn_default_disabled_ovui.9.png", generation9},
    {"btn_default_normal_ovui.9.png", generation9},
    {"btn_default_pressed_ovui.9.png", generation9},
    {"expander_close_ovui.9.png", generation9},
    {"expander_open_ovui.9.png", generation9},
    {"line_split_bottom_ovui.9.png", generation9},
    {"popup_full_bright_ovui.9.png", generation9},
    {"popup_full_bright_opaque_ovui.9.png", generation9},
    {"toast_frame_ovui.9.png", generation9},
    {"toolbar_bg.9.png", generation9},
    {"textfield_default_bubble_ovui.9.png", generation5},
    {"textfield_search_default_ovui.9.png", generations59},
}};

} // namespace zdt::tables
