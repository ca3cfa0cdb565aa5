#pragma once

#include "modules/tables/keyRow.h"

#include <array>

namespace zdt::tables {

/// The keys of the call recorder, in the order in which they stand in the tree and in theme.xml.
inline constexpr std::array<KeyRow, 6> recorderKeys{{
    {generations89, "autorecord_list_item_number_text", "#80242424"},
    {generation8, "autorecord_list_item_name_text_color", "#000000"},
    {generation8, "actionbar_editorview_text_color", "#000000"},
    {generation8, "actionbar_editorview_image_color", "#007dff"},
    {generation9, "preference_title_enable_color", "#80242424"},
    {generation9, "preference_title_disable_color", "#33242424"},
}};

} // namespace zdt::tables
