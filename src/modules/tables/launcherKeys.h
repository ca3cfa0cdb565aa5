#pragma once

#include "modules/tables/keyRow.h"

#include <array>

namespace zdt::tables {

/// The keys of the launcher, in the order in which they stand in the tree and in theme.xml.
inline constexpr std::array<KeyRow, 38> launcherKeys{{
    {generations589, "workspace_app_text_color", "#ffffff"},
    {generations589, "folder_app_text_color", "#ffffff"},
    {generations589, "widget_text_color", "#ffffff"},
    {generations589, "calendar_dynamic", "#ffffff"},
    {generations589, "folderadd_text_color", "#242424"},
    {generations589, "navigation_blackspot_current", "#242424"},
    {generations589, "clock_dynamic_icon_color", "#242424"},
    {generations589, "folderadd_text_shadowColor", "#00000000"},
    {generations589, "icon_shadow", "#00000000"},
    {generations589, "calendar_dynamic_shadow", "#00000000"},
    {generations589, "folderadd_text_shadow", "false", "bool"},
    {generations589, "navigation_blackspot_normal", "#4D242424"},
    {generations58, "navigation_deskspot_current", "#FFFFFF"},
    {generations58, "navigation_deskspot_normal", "#b5b5b5"},
    {generations59, "workspace_app_text_shadowColor", "#00000000"},
    {generations59, "folder_app_text_shadowColor", "#00000000"},
    {generations59, "workspace_app_text_shadow", "true", "bool"},
    {generations59, "folder_app_text_shadow", "false", "bool"},
    {generations89, "folder_background_simple", "#ffffff"},
    {generations89, "calendar_dynamic_date", "#ffffff"},
    {generations89, "ic_home_bg_pressed_color", "#007dfe"},
    {generations89, "checked", "#007dfe"},
    {generations89, "folder_icon_text_simple", "#000000"},
    {generation8, "wallpaper_setting_catagory_color", "#08000000"},
    {generation8, "hifolder_selected_border_color", "#08000000"},
    {generation8, "home_pinch_in_gesture_color", "#00ACC1"},
    {generation8, "search_span_color", "#00ACC1"},
    {generation8, "addlist_textview_color", "#000000"},
    {generation8, "alphaindexer_selected_alpha_color", "#FF0D9FFB"},
    {generation8, "launcher_zd_privacy_policy", "#007dff"},
    {generation8, "hifolder_unselected_border_color", "#33ffffff"},
    {generation8, "hifolder_unselected_box_color", "#14ffffff"},
    {generation8, "hifolder_selected_bg_color", "#ff00acc1"},
    {generation9, "alphaindexer_pop_text_color", "#007dfe"},
    {generation9, "ic_home_checkbox_color", "#007dfe"},
    {generation9, "color_50_black", "#242424"},
    {generation9, "ic_home_checkbox_off_center_color", "#4Dffffff"},
    {generation9, "ic_home_checkbox_off_rim_color", "#D8007dfe"},
}};

} // namespace zdt::tables
