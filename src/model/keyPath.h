#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zdt {

/// The names of the nodes from the root down to one of them, the root's own left out. A name never holds "/".
using KeyPath = std::vector<std::string>;

/// The names joined by "/", the form in which a key is shown and typed.
[[nodiscard]] std::string joinKeyPath(const KeyPath& path);

/// The names between the "/" of a text, empty ones too; an empty text gives an empty path.
[[nodiscard]] KeyPath splitKeyPath(std::string_view text);

} // namespace zdt
