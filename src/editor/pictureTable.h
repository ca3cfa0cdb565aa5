#pragma once

#include "editor/pictureEntry.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zdt {

class ThemeResource;

/// Pictures that stand together on a screen.
struct PictureSetRow {
    std::string_view module;    ///< Of the page.
    std::string_view screen;    ///< As in the tree of simple mode, or an extra screen's name.
    std::string_view subModule; ///< Whose pictures they are.
    std::string_view group;     ///< Of the keys `key_simple_pic_<group>` and `simple_picpath_<group>`.
    std::span<const std::string_view> names;
};

/// Which pictures each screen shows, in order. A picture may be on several.
[[nodiscard]] std::span<const PictureSetRow> pictureSetRows();

/// The groups of a screen with the pictures that take part in the theme; groups without one are left out. The words are
/// those of the moment. None for a theme of no generation.
[[nodiscard]] std::vector<PictureGroup> pictureGroupsOf(const ThemeResource& theme, std::string_view module,
                                                        std::string_view screen);

/// The groups of all screens of a module, each picture once.
[[nodiscard]] std::vector<PictureGroup> pictureGroupsOf(const ThemeResource& theme, std::string_view module);

/// Whether a picture of that name is one of the module's, whatever the theme; upper and lower case are the same.
[[nodiscard]] bool isPictureOf(std::string_view module, std::string_view name);

/// What a key list knows of an entry: what changes and resets it.
[[nodiscard]] KeyRow keyRowOf(const ThemeResource& theme, const PictureEntry& entry);

/// Whether the picture that is shown is another than the template's. Reads both files.
[[nodiscard]] bool hasOwnPicture(const PictureEntry& entry);

/// Reads the files of an entry anew.
void refreshEntry(const ThemeResource& theme, PictureEntry& entry);

} // namespace zdt
