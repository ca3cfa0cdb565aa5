#pragma once

#include "assets/art/generation.h"

#include <QImage>

#include <functional>
#include <string>
#include <vector>

namespace zdt::assets {

/// A template as it stands on disk.
struct TemplateFolder {
    std::string directory; ///< Ending in "/".
    const Generation& generation;

    /// Null if it can't be read.
    [[nodiscard]] QImage picture(const std::string& path) const;
    /// The paths, in their order, of the files that `wanted` says; of files with the same bytes only the first.
    [[nodiscard]] std::vector<std::string> files(const std::function<bool(const std::string&)>& wanted) const;
};

/// What tells a file from the others: its name without the packages' common beginnings and without its ending.
[[nodiscard]] QString shortName(const std::string& path);

} // namespace zdt::assets
