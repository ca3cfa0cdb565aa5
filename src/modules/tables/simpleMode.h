#pragma once

#include <string_view>

/// The shared settings of simple mode, as data.
namespace zdt::tables {

/// A shared setting, or more sources for one.
struct SimpleModeRow {
    std::string_view item;  ///< Module, group and item in the simple tree, joined by "/"; an interface shows the words.
    std::string_view block; ///< The key of the block in the theme's tree that holds the sources.
    std::string_view keys;  ///< The names of the sources, a blank between them.
};

/// The shared settings, in the order of modules, groups and items in the simple tree. Their sources follow the block's
/// order, and a key that the block lacks is left out.
inline constexpr SimpleModeRow simpleModeItems[] = {
    {"launcher/launcher/highlight color", "launcher/text",
     "ic_home_checkbox_color home_pinch_in_gesture_stroke ic_home_bg_pressed_color checked "
     "alphaindexer_pop_text_color ic_home_checkbox_off_rim_color"},
    {"launcher/folder/app text", "launcher/text", "folder_app_text_color"},
    {"launcher/folder/text shadow", "launcher/text", "folder_app_text_shadowColor"},
    {"launcher/folder/shadow switch", "launcher/text", "folder_app_text_shadow"},
    {"launcher/simple mode/background color", "launcher/text", "folder_background_simple"},
    {"commonSetting/dial/background color", "contacts/commonSetting/text",
     "zdtoolbar_background primary_ovui_light navigationbar_ovui_light ovui_color_gray_1 ovui_appbar_bg "
     "ovui_appbar_bg_blur ovui_toolbar_bg ovui_toolbar_bg_blur ovui_navigationbar_bg ovui_navigationbar_bg_blur "
     "ovui_subtab_bg ovui_subtab_bg_blur ovui_black_color_alpha_5 ovui_color_tips_bg ovui_color_bg"},
    {"commonSetting/dial/highlight color", "contacts/commonSetting/text",
     "ovui_accent ovui_functional_blue ovui_functional_red searchview_cursor_color_ovui ovui_color_gray_8 "
     "ovui_switch_bg_on ovui_progress ovui_control_hightlight ovui_subtab_text_on ovui_subtab_line_on "
     "ovui_bottombar_icon_on ovui_bottombar_text_on ovui_checkbox_boxedge ovui_switch_outline_off"},
    {"commonSetting/dialing settings/first level icon text", "contacts/commonSetting/text",
     "ovui_primary ovui_color_gray_10 ovui_black ovui_button_text_color ovui_button_text_disabled "
     "ovui_svg_icon_light_default ovui_svg_icon_light_disabled ovui_list_primary_default ovui_message_text_color "
     "ovui_listitem_text_color ovui_text_dark ovui_text_disabled ovui_spinner_icon ovui_text_primary "
     "ovui_appbar_icon ovui_appbar_icon_pressed ovui_appbar_title ovui_toolbar_icon ovui_toolbar_icon_pressed "
     "ovui_toolbar_text ovui_toolbar_text_pressed spinner_item_disabled ovui_secondary_text_dark "
     "ovui_secondary_text_dark_disabled ovui_gray_2 ovui_black_color_alpha_30"},
    {"commonSetting/dialing settings/button box background", "contacts/commonSetting/text",
     "ovui_highlighted_text ovui_color_gray_2 switch_track_off_bg_ovui ovui_white_dialog_bg "
     "ovui_fastscroll_lable_bg switch_off_disable_ovui ovui_dialog_bg"},
    {"commonSetting/contact list/dividing line", "contacts/commonSetting/text",
     "divider_horizontal_color_ovui ovui_color_gray_4 ovui_color_divider_horizontal pop_button_line_bg_detail_recv "
     "ovui_color_fg"},
    {"commonSetting/contact details/secondary icon text", "contacts/commonSetting/text",
     "ovui_color_gray_7 ovui_color_gray_5 ovui_subtab_text_off ovui_bottombar_icon_off ovui_bottombar_text_off "
     "ovui_text_hint ovui_icon_tertiary ovui_secondary"},
    {"contacts/dial/background color", "contacts/text",
     "searchview_background_white ovui_fab_normal ovui_fab_pressed dialpad_background_color "
     "draglistview_backgroud_selected_color default_nav_bar_color"},
    {"contacts/dial/separator color", "contacts/text", "tips_and_divider_color divider_color"},
    {"contacts/dial/highlight color", "contacts/text",
     "ovui_accent dialpad_guidle_letter_color download_selector_color_state_default delete_text_color "
     "red_icon_disable_color"},
    {"contacts/contact list/first level icon text", "contacts/text",
     "dialpad_guide_content_text_color ovui_primary ovui_color_gray_7 btn_detail_disable_icon_color "
     "btn_detail_normal_icon_color normal_state_icon_color speed_dial_name_has_contact_default_color "
     "speed_dial_circle_color empty_icon_color call_log_primary_text_color contact_list_item_text_color "
     "contact_eidtor_item_name_color contact_account_header_name_color ovui_fab_icon speed_dial_pressed_bg_color "
     "contact_detail_qrcode_text_color numbermark_tip_main_info_text_color dialpad_zendro_text_color "
     "rcs_text_color_grey call_log_secondary_text_color empty_contacts_text_color "
     "contact_list_photo_outer_border_color contact_list_photo_resource_color contact_svg_icon_sim_grey_color "
     "favorites_tile_name_text_pressed_color contact_list_item_sub_text_color contact_detail_data_text_color "
     "contact_eidtor_account_summary_name_color contact_eidtor_item_content_color "
     "contacts_list_text_color_ovui_summary contact_eidtor_account_hint_color "
     "contact_eidtor_source_account_type_color contact_eidtor_source_account_name_color "
     "contact_camcard_about_text_color text_color_spinner_item shortcut_item_data_textcolor"},
    {"contacts/contact list/box icon text", "contacts/text", "contact_dialog_content"},
    {"mms/mms list/background color", "mms/text",
     "fab_new_message_bg fab_new_message_bg_press ovui_gray_5 chips_bg_color ovui_gray_5_adaptation_nova "
     "duoqu_menu_background_color ovui_color_gray_1 emoji_category_panel_dark search_view_background_color"},
    {"mms/mms list/accessory selected background color", "mms/text",
     "attach_panel_item_color emoji_category_panel_choose mediapicker_others_view_background"},
    {"mms/mms list/highlight color", "mms/text",
     "touch_to_open_text ic_unread_message_color ic_unread_message_mark_point_color "
     "duoqu_bubble_bottom_text_unselected_color duoqu_show_card_color rcsgroup_pick_audio_color "
     "message_list_item_cancle_count_color ic_switchsimcard_forecard_rcs_bg_color "
     "ic_switchsimcard_forecard_sms_bg_color signview_selected_color emoji_icon_checked_color "
     "attahcment_tab_text_selected mediapicker_perimission_request_text_color attachment_tab_button_selected "
     "ovui_color_gray_10 map_not_net_set_net_text_color message_plus_about_bluedot_color duoqu_link_color "
     "message_pop_rcs_send_bg_color message_pop_rcs_send_bg_color_pressed duoqu_feature_tips_icon_color "
     "radiobution_checked_color_inner search_highlight_text_color accent_ovui "
     "duoqu_bubble_bottom_text_selected_color duoqu_feature_action_not_enable_tv_color "
     "duoqu_url_default_layout_click_to_load_tv_color duoqu_feature_action_enable_tv_color ovui_functional_blue "
     "incoming_msg_text_color messaeg_pop_link_color_send_rcs_theme_adapter "
     "messaeg_pop_link_color_send_sms_theme_adapter"},
    {"mms/mms list/warning text", "mms/text", "conversation_list_item_error_msg_color"},
    {"mms/MMS/first level icon text", "mms/text",
     "signview_normal_color emoji_icon_default_color attahcment_tab_text_unselected "
     "attachment_tab_button_unselected loading_text_color message_plus_about_greydot_color "
     "fab_new_message_center_color menu_state_default_dark_icon_on_actionbar "
     "menu_state_pressed_dark_icon_on_actionbar title_color_primary_dark subtitle_color_primary_dark "
     "recipients_text_color menu_state_default_dark_icon menu_state_pressed_dark_icon "
     "menu_state_disabled_dark_icon message_pop_send_bg_color message_pop_send_bg_color_pressed "
     "send_sms_btn_disable mms_text_counter_color multisimcard_select_arrow_color text_color_black_sub_2 "
     "duoqu_menu_splite_bgcolor duoqu_bottom_menu_text_color compose_bottom_layout_button_default_color "
     "compose_bottom_layout_button_pressed_color ic_sms_album_color ovui_primary others_tab_button_unenbale_color "
     "mms_audio_background_stroke_color tips_text_color text_color mms_stop_btn_color mms_play_btn_color "
     "mms_ic_save_color black teaser_main_text mms_search_result_primary_text_color "
     "duoqu_ic_sms_stroke_black_color mms_main_text_color mms_sub_text_color group_name_show_color "
     "black_color_groupmember_item_name rcs_group_chat_button_background_stroke_color "
     "rcs_group_chat_add_button_background_stroke_color text_color_black_main ovui_gray_10 "
     "rcs_talk_button_ovui_white rcs_talk_button_ovui_color_gray_4 rcsgroup_pick_audio_color "
     "conversation_item_divider_color text_color_black_sub3 text_color_black_sub_1 message_under_pop_icon_color "
     "text_color_half_black rcs_guide_message_color registered_sucesful_warning tips_title_color "
     "tips_summary_color search_hint_text_color compose_hint_text_color attachment_preview_vcard_textcolor "
     "single_text_editor_color attachment_preview_slide_page_textcolor attachment_preview_audio_textcolor "
     "text_color_black expiretime_text_color sim_title_color_primary_dark dialog_list_text_color"},
    {"mms/MMS/secondary icon text", "mms/text",
     "ic_empty_message_color conversation_text_normal_color duoqu_preference_summary_text_color "
     "duoqu_setting_bottom_text_color"},
    {"mms/MMS/input box background color", "mms/text",
     "mms_search_view_edit_bg_color_onappbar message_editor_background attachment_preview_vcard_bg"},
    {"mms/smart message/accept bubble information background color", "mms/text",
     "message_pop_incoming_bg_color duoqu_rcs_url_bg_color"},
    {"mms/smart message/receive message text", "mms/text",
     "other_file_name_color_receiver other_file_size_color_receiver pop_button_line_bg_detail_recv "
     "duoqu_web_nearby_point_split duoqu_recg_dlg_title_color duoqu_recg_dlg_company_color "
     "duoqu_recg_dlg_loading_text_color duoqu_recg_dlg_prompt_text_color duoqu_recg_train_dep_city_color "
     "duoqu_recg_train_arr_city_color duoqu_recg_train_dep_time_color duoqu_recg_train_arr_time_color "
     "duoqu_recg_train_date_color duoqu_recg_arr_date_color duoqu_recg_arr_week_color duoqu_recg_train_week_color "
     "duoqu_train_svg_color duoqu_feature_train_spannable_color duoqu_recg_air_dep_city_color "
     "duoqu_recg_air_arr_city_color duoqu_recg_air_dep_time_color duoqu_recg_air_arr_time_color "
     "duoqu_recg_air_dep_time_type_color duoqu_recg_air_arr_time_type_color duoqu_recg_air_guitai_text_color "
     "duoqu_recg_air_dengjikou_text_color duoqu_recg_air_zhuanpan_text_color duoqu_recg_air_zhuanpan_color "
     "duoqu_recg_air_guitai_color duoqu_recg_air_dengjikou_color duoqu_recg_air_state_color "
     "duoqu_recg_air_dep_week_type_color duoqu_recg_air_arr_week_type_color duoqu_file_url_preview_title_color "
     "duoqu_file_url_preview_content_color duoqu_rcs_tips_color duoqu_out_of_date_color "
     "duoqu_rcs_expired_domain_color duoqu_url_tv_area_color duoqu_url_tv_address_color duoqu_url_voice_time_color "
     "duoq_url_voice_color duoqu_white duoqu_url_contact_item_value_color "
     "duoqu_url_default_layout_load_error_tv_color ovui_black ovui_gray_2"},
    {"mms/smart message/send bubble information background color", "mms/text",
     "message_pop_send_bg_color_theme_adapter encrypt_pop_send_background "
     "message_pop_rcs_send_bg_color_theme_adapter"},
    {"mms/smart message/send message text", "mms/text",
     "encrypt_pop_send_text_color messaeg_pop_text_color_send_rcs_theme_adapter "
     "messaeg_pop_text_color_send_sms_theme_adapter other_file_name_color_send other_file_size_color_send "
     "rcs_map_location_title_color_recv rcs_map_location_sub_title_color_recv"},
    {"mms/mms settings/pop-up text", "mms/text",
     "duoqu_ic_sms_black_color duoqu_bubble_style_text_color duoqu_border_color"},
    {"systemui/drop down notification/background color", "systemui/text",
     "qs_panel_background qs_customize_content_backgroundcolor"},
    {"systemui/drop down notification/icon text color", "systemui/text",
     "notification_header_clock_text_color notification_header_clock_text_color_pressed "
     "notification_header_icon_color notification_header_clock_icon_color_pressed qs_tile_tint_off "
     "qs_tile_tint_disable qs_customize_divider_text_color ic_ab_back_color qs_text_user qs_user_detail_name "
     "ripple_drawable_dark_color volume_settings_ic_color status_bar_brightness_image_color "
     "brightness_bar_left_color brightness_bar_right_color brightness_progress_bg_color"},
    {"systemui/drop down notification/highlight color", "systemui/text",
     "qs_tile_tint_on brightness_image_color volume_image_color qs_detail_button qs_tile_tint_opening "
     "notification_manager_tip_color"},
    {"systemui/switch sort/separator color", "systemui/text", "qs_customize_divider_backgroundcolor"},
};

/// Sources that are added to the items above, in this order; their blocks have all of these keys.
inline constexpr SimpleModeRow simpleModeAdditions[] = {
    {"launcher/launcher/highlight color", "launcher/commonSetting/text",
     "ovui_accent ovui_checkbox_boxedge ovui_switch_outline_off ovui_switch_bg_on ovui_color_gray_5"},
    {"contacts/dial/background color", "contacts/commonSetting/text", "ovui_color_bg"},
    {"contacts/dial/highlight color", "contacts/commonSetting/text", "ovui_accent ovui_control_hightlight"},
    {"contacts/contact list/first level icon text", "contacts/commonSetting/text",
     "ovui_gray_2 ovui_color_gray_8 ovui_primary ovui_text_primary ovui_spinner_icon ovui_color_gray_10 ovui_black "
     "ovui_button_text_color ovui_button_text_disabled ovui_svg_icon_light_default ovui_svg_icon_light_disabled "
     "ovui_list_primary_default ovui_message_text_color ovui_listitem_text_color ovui_text_dark ovui_text_disabled "
     "ovui_appbar_icon ovui_appbar_icon_pressed ovui_appbar_title ovui_toolbar_icon ovui_toolbar_icon_pressed "
     "ovui_toolbar_text ovui_toolbar_text_pressed"},
    {"contacts/contact list/first level icon text", "phone/text",
     "incall_button_text_color_selected incall_button_text_color_selected_dis adn_list_empty_icon_color "
     "adn_list_empty_text_color divider_color ovui_primary_text_dark_disabled ovui_text_dark "
     "ovui_list_primary_default"},
    {"contacts/contact list/first level icon text", "phone/commonSetting/text",
     "ovui_color_gray_7 ovui_icon_tertiary ovui_svg_icon_light_default ovui_svg_icon_light_disabled"},
    {"contacts/contact list/first level icon text", "recorder/text",
     "preference_title_enable_color preference_title_disable_color autorecord_list_item_number_text"},
    {"mms/mms list/background color", "mms/commonSetting/text",
     "ovui_navigationbar_bg_blur divider_horizontal_color_ovui ovui_black_color_alpha_5"},
    {"mms/mms list/highlight color", "mms/commonSetting/text",
     "ovui_accent ovui_functional_blue ovui_color_gray_5 ovui_checkbox_boxedge ovui_switch_outline_off "
     "ovui_switch_bg_on"},
    {"mms/mms list/warning text", "mms/commonSetting/text", "ovui_functional_red"},
    {"mms/MMS/first level icon text", "mms/commonSetting/text",
     "ovui_text_primary ovui_primary ovui_color_gray_10 ovui_appbar_icon ovui_appbar_icon_pressed "
     "ovui_appbar_title ovui_toolbar_icon ovui_toolbar_icon_pressed ovui_toolbar_text ovui_toolbar_text_pressed "
     "ovui_black ovui_secondary_text_dark ovui_secondary_text_dark_disabled ovui_text_dark ovui_text_disabled"},
    {"mms/MMS/secondary icon text", "mms/commonSetting/text",
     "ovui_color_gray_7 ovui_svg_icon_light_default ovui_svg_icon_light_disabled ovui_icon_tertiary"},
    {"mms/MMS/input box background color", "mms/commonSetting/text",
     "ovui_color_gray_1 ovui_subtab_bg ovui_subtab_bg_blur"},
    {"mms/mms settings/pop-up text", "mms/commonSetting/text", "ovui_black"},
    {"systemui/drop down notification/background color", "systemui/commonSetting/text", "ovui_color_bg"},
    {"systemui/drop down notification/icon text color", "systemui/commonSetting/text",
     "ovui_secondary ovui_primary ovui_text_primary ovui_appbar_icon ovui_appbar_icon_pressed ovui_appbar_title "
     "ovui_color_gray_10 ovui_toolbar_icon ovui_toolbar_icon_pressed"},
    {"systemui/drop down notification/highlight color", "systemui/commonSetting/text",
     "ovui_accent ovui_control_hightlight"},
    {"systemui/switch sort/separator color", "systemui/commonSetting/text", "ovui_black_color_alpha_5"},
    {"commonSetting/dialing settings/first level icon text", "launcher/text",
     "folder_icon_text_simple color_50_black navigation_blackspot_current navigation_blackspot_normal"},
};

} // namespace zdt::tables
