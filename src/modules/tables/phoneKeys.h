#pragma once

#include "modules/tables/keyRow.h"

#include <array>

namespace zdt::tables {

/// The keys of the phone application, in the order in which they stand in the tree and in theme.xml.
inline constexpr std::array<KeyRow, 8> phoneKeys{{
    {generations89, "adn_list_empty_icon_color", "#80242424"},
    {generations89, "adn_list_empty_text_color", "#80242424"},
    {generations89, "incall_button_text_color_selected", "#007dfe"},
    {generations89, "incall_button_text_color_selected_dis", "#4D007dfe"},
    {generation9, "divider_color", "#4D242424"},
    {generation9, "ovui_primary_text_dark_disabled", "#4D242424"},
    {generation9, "ovui_text_dark", "#80242424"},
    {generation9, "ovui_list_primary_default", "#33242424"},
}};

} // namespace zdt::tables
