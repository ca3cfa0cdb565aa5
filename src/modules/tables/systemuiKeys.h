#pragma once

#include "modules/tables/keyRow.h"

#include <array>

namespace zdt::tables {

/// The keys of the status bar and the recent tasks, in the order in which they stand in the tree and in theme.xml.
inline constexpr std::array<KeyRow, 34> systemuiKeys{{
    {generations589, "notification_header_clock_text_color", "#808080"},
    {generations589, "notification_header_icon_color", "#808080"},
    {generations589, "status_bar_brightness_image_color", "#808080"},
    {generations589, "qs_customize_divider_text_color", "#808080"},
    {generations589, "volume_image_color", "#007dfe"},
    {generations589, "qs_tile_tint_on", "#007dfe"},
    {generations589, "qs_tile_tint_opening", "#007dfe"},
    {generations589, "notification_header_clock_text_color_pressed", "#80808080"},
    {generations589, "ripple_drawable_dark_color", "#80808080"},
    {generations589, "qs_tile_tint_off", "#80808080"},
    {generations589, "qs_tile_tint_disable", "#4D808080"},
    {generations58, "volume_slider_inactive", "#000000"},
    {generations58, "systovui_expand_traffic_text_color", "#000000"},
    {generations58, "systovui_expand_traffic_warning_text_color", "#000000"},
    {generations58, "recents_task_bar_dark_text_color", "#000000"},
    {generations58, "brightness_text_color", "#ffffff"},
    {generations58, "qs_customize_toolbar_text_color", "#ffffff"},
    {generations58, "recents_task_meminfo_text_color", "#ffffff"},
    {generations58, "recents_task_bar_light_text_color", "#ffffff"},
    {generations58, "ripple_drawable_light_color", "#a4a4a4"},
    {generation9, "brightness_bar_left_color", "#808080"},
    {generation9, "brightness_bar_right_color", "#808080"},
    {generation9, "ic_ab_back_color", "#808080"},
    {generation9, "qs_text_user", "#808080"},
    {generation9, "qs_detail_button", "#808080"},
    {generation9, "qs_user_detail_name", "#808080"},
    {generation9, "qs_panel_background", "#ffffff"},
    {generation9, "qs_customize_content_backgroundcolor", "#ffffff"},
    {generation9, "notification_header_clock_icon_color_pressed", "#80808080"},
    {generation9, "volume_settings_ic_color", "#80808080"},
    {generation9, "notification_manager_tip_color", "#007dfe"},
    {generation9, "brightness_image_color", "#007dfe"},
    {generation9, "brightness_progress_bg_color", "#80007dfe"},
    {generation9, "qs_customize_divider_backgroundcolor", "#f0f0f0"},
}};

} // namespace zdt::tables
