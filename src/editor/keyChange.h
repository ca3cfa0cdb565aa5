#pragma once

#include "editor/keyRows.h"

#include <string>

namespace zdt {

/// Sets a row's value in all its places and writes their blocks: all of them, or none on the first refusal, whose code
/// is the result. A file is copied into the theme.
[[nodiscard]] int changeKey(ThemeResource& theme, const KeyRow& row, const std::string& value);

/// Gives each place of a row of texts or colours the value that the row names for it, and writes their blocks: the way
/// back from what was tried.
[[nodiscard]] int restoreKey(ThemeResource& theme, const KeyRow& row);

/// Whether `resetKey` has something to put back, or to take away.
/// @param changed whether the row differs from its default
[[nodiscard]] bool canReset(const KeyRow& row, bool changed);

/// Puts a row's places back to the template's value; a file that has none there and that the theme may do without is
/// taken away.
[[nodiscard]] int resetKey(ThemeResource& theme, const KeyRow& row);

/// Why a file wasn't taken.
struct FileRefusal {
    int code = 0;        ///< Of the store; 0 if a check refused before it.
    std::string message; ///< Key of the message of a check; empty if the store refused.

    [[nodiscard]] bool isNone() const { return code == 0 && message.empty(); }
};

/// Checks a file and puts it in the place of a row's. A PNG that fits by its size is made into a JPEG where the place
/// takes no other.
[[nodiscard]] FileRefusal replaceFile(ThemeResource& theme, const KeyRow& row, const std::string& file);

} // namespace zdt
