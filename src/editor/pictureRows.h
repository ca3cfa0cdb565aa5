#pragma once

#include "editor/pictureTable.h"

#include <string_view>

/// The pictures of each screen.
namespace zdt::pictureRows {

using Names = std::string_view;

// Of the home screen
inline constexpr Names drawer[]{"ic_allapps.png", "ic_allapps_pressed.png"};
inline constexpr Names effects[]{
    "launcher_edit_transition_defult_current.png",   "launcher_edit_transition_page_current.png",
    "launcher_edit_transition_box_current.png",      "launcher_edit_transition_filpover_current.png",
    "launcher_edit_transition_rotate_current.png",   "launcher_edit_transition_squeeze_current.png",
    "launcher_edit_transition_windmill_current.png", "launcher_edit_transition_prespective_current.png"};
inline constexpr Names rightArrow[]{"ic_arrow.png"};
inline constexpr Names homeEditing[]{"ic_edit_share.9.png", "ic_edit_delete.9.png", "ic_mark.9.png",
                                     "btn_check_on.png"};
inline constexpr Names widgetFrame[]{"widget_resize_frame_holo.9.png", "widget_resize_handle_horizontal.png",
                                     "widget_resize_handle_vertical.png"};
inline constexpr Names homeTasks[]{"zd_recents_lock.png", "ic_sysbar_docked_zendro.png"};
inline constexpr Names folder[]{"folder_add_icon.png", "folder_open_shadow.9.png"};

// Of the contacts and the phone
inline constexpr Names dialKeys[]{"dial_num_1_blk.png",
                                  "dial_num_1_blk_press.png",
                                  "dial_num_2_blk.png",
                                  "dial_num_2_blk_press.png",
                                  "dial_num_3_blk.png",
                                  "dial_num_3_blkpress.png",
                                  "dial_num_4_blk.png",
                                  "dial_num_4_blk_press.png",
                                  "dial_num_5_blk.png",
                                  "dial_num_5_blk_press.png",
                                  "dial_num_6_blk.png",
                                  "dial_num_6_blk_press.png",
                                  "dial_num_7_blk.png",
                                  "dial_num_7_blk_press.png",
                                  "dial_num_8_blk.png",
                                  "dial_num_8_blk_press.png",
                                  "dial_num_9_blk.png",
                                  "dial_num_9_blk_press.png",
                                  "xing.png",
                                  "xingpress.png",
                                  "dial_num_0_blk.png",
                                  "dial_num_0_blk_press.png",
                                  "jing.png",
                                  "jingpress.png",
                                  "dialpad_button_press_state.9.png"};
inline constexpr Names dialBackground[]{"contact_dialpad.9.png", "contact_dial_fun_menu.9.png",
                                        "contact_dial_fun_menu_pressed.9.png"};
inline constexpr Names callLog[]{"ic_contacts_calllog_hd.png", "csp_actionbar_number_circle.9.png",
                                 "csp_actionbar_number_circle_light.9.png"};
inline constexpr Names phoneLists[]{"list_section_divider_ovui.9.png", "preference_category_backgound.9.png"};
inline constexpr Names fastScroll[]{"fastscroll_familyname_normal.9.png", "fastscroll_label_phonebook_ovui.png",
                                    "fastscroll_label_phonebook_ovui_null.png",
                                    "fastscroll_label_phonebook_ovui_icon.png",
                                    "fastscroll_label_phonebook_ovui_null_icon.png"};
inline constexpr Names contactLists[]{"people_background.9.png",           "header_background4.9.png",
                                      "contact_section_background.9.png",  "contact_expander_open_ovui.9.png",
                                      "contact_expander_close_ovui.9.png", "ic_sync_anim_holo.png"};
inline constexpr Names contactCard[]{"profile_simple_card_background.9.png", "company_pop_background.9.png",
                                     "contact_detail_list_background.9.png"};
inline constexpr Names contactEditing[]{"contact_edit_text_background.9.png",
                                        "contact_textfield_default_holo_light.9.png",
                                        "textfield_activated_holo_light.9.png"};

// Of the messages
inline constexpr Names messageList[]{"mms_messagelist_background.9.png", "ic_message_noti_zendro.png"};
inline constexpr Names messageLines[]{"toolbar_bg.9.png", "list_section_divider_ovui.9.png",
                                      "line_split_bottom_ovui.9.png"};
inline constexpr Names messageBubble[]{"btn_gallery_check.png"};
inline constexpr Names voiceInput[]{"mic_st_widget_normal.png",
                                    "mic_st_widget_speeching_glow.png",
                                    "mic_st_widget_recording_bar_glow.png",
                                    "v_bg_1.9.png",
                                    "v_bg_2.9.png",
                                    "v_bg_3.9.png",
                                    "v_bg_4.9.png"};
inline constexpr Names smartCard[]{"duoqu_has_botton_bg.9.png", "duoqu_no_button_bg.9.png", "duoqu_menu_bg.9.png",
                                   "duoqu_toolbar_bg.9.png",    "duoqu_point_on.png",       "duoqu_point_off.png"};

// Of the system's own interface
inline constexpr Names volume[]{"volume_popup.9.png", "volume_arrow_up.png", "volume_arrow_down.png"};
inline constexpr Names cleanUp[]{"ic_onekey_widget_preview.png", "ic_onekey_widget_shortcut.png"};
inline constexpr Names systemTasks[]{"zd_recents_close_all.png", "zd_recents_close_all_press.png",
                                     "zd_recents_dismiss.png", "zd_recents_lock.png", "zd_recents_unlock.png"};

// Of the widgets that all applications share
inline constexpr Names searchBox[]{"search_bg_normal.9.png", "search_bg_actived.9.png",
                                   "textfield_search_default_ovui.9.png"};
inline constexpr Names buttons[]{
    "btn_default_normal_ovui.9.png", "btn_default_pressed_ovui.9.png",        "btn_default_disabled_ovui.9.png",
    "button_big_bg_stroked.9.png",   "button_big_bg_stroked_pressed.9.png",   "button_big_bg_stroked_disable.9.png",
    "button_small_bg_stroked.9.png", "button_small_bg_stroked_pressed.9.png", "button_small_bg_stroked_disable.9.png"};
inline constexpr Names scrollBars[]{"bg_scrollbar.9.png", "bg_scrollbar_horizontal.9.png",
                                    "scrubber_control_normal_ovui.png", "scrubber_control_pressed_ovui.png",
                                    "scrubber_control_disabled_ovui.png"};
inline constexpr Names lists[]{"background_ovui.9.png",
                               "toolbar_bg.9.png",
                               "list_section_divider_ovui.9.png",
                               "line_split_bottom_ovui.9.png",
                               "expander_open_ovui.9.png",
                               "expander_close_ovui.9.png",
                               "list_selector_background_focused_top_ovui.9.png",
                               "list_selector_background_focused_middle_ovui.9.png",
                               "alphaindexerlistview_bg_label.9.png"};
inline constexpr Names popups[]{"popup_full_bright_ovui.9.png", "popup_full_bright_opaque_ovui.9.png",
                                "spinner_menu.9.png", "toast_frame_ovui.9.png"};
inline constexpr Names textFields[]{
    "textfield_default_linear_ovui.9.png", "textfield_default_linear_actived_ovui.9.png",
    "textfield_default_bubble_ovui.9.png", "textfield_bg_error.9.png", "bg_edittext_item.9.png"};

inline constexpr PictureSetRow rows[]{
    {"launcher", "launcher", "launcher", "drawer_style", drawer},
    {"launcher", "launcher", "launcher", "toggle_effect", effects},
    {"launcher", "launcher", "launcher", "right_arrow", rightArrow},
    {"launcher", "launcher", "launcher", "desktop_edit", homeEditing},
    {"launcher", "launcher", "launcher", "widget_frame", widgetFrame},
    {"launcher", "launcher", "launcher", "recent_tasks", homeTasks},
    {"launcher", "folder", "launcher", "folder", folder},

    {"contacts", "dial", "contacts", "dial_keys", dialKeys},
    {"contacts", "dial", "contacts", "dial_background", dialBackground},
    {"contacts", "dial", "contacts", "call_log", callLog},
    {"contacts", "dial", "phone", "list", phoneLists},
    {"contacts", "contact list", "contacts", "fast_scroll", fastScroll},
    {"contacts", "contact list", "contacts", "list_background", contactLists},
    {"contacts", "contact details", "contacts", "contact_card", contactCard},
    {"contacts", "new contact", "contacts", "contact_edit", contactEditing},

    {"mms", "mms list", "mms", "message_list", messageList},
    {"mms", "mms list", "mms", "list", messageLines},
    {"mms", "MMS", "mms", "message_bubble", messageBubble},
    {"mms", "MMS", "mms", "voice_input", voiceInput},
    {"mms", "smart message", "mms", "smart_card", smartCard},
    {"mms", "mms settings", "mms", "list", messageLines},

    {"systemui", "drop down notification", "systemui", "volume", volume},
    {"systemui", "switch sort", "systemui", "onekey_widget", cleanUp},
    {"systemui", "users", "systemui", "recent_tasks", systemTasks},

    {"commonSetting", "dial", "commonSetting", "search", searchBox},
    {"commonSetting", "dial", "commonSetting", "button", buttons},
    {"commonSetting", "dialing settings", "commonSetting", "list", lists},
    {"commonSetting", "contact list", "commonSetting", "list", lists},
    {"commonSetting", "contact list", "commonSetting", "scroll_bar", scrollBars},
    {"commonSetting", "contact details", "commonSetting", "popup", popups},
    {"commonSetting", "contact details", "commonSetting", "text_field", textFields},
};

} // namespace zdt::pictureRows
