#pragma once

#include "assets/art/generation.h"

#include <QImage>

#include <string>
#include <vector>

/// The pictures of the lock screens, in the folder `drawable-hdpi/` beside their layouts.
namespace zdt::assets {

struct LockPicture {
    std::string path; ///< In the template.
    QImage (*draw)(const std::string& name, const Generation& generation);
};

[[nodiscard]] std::vector<LockPicture> lockPictures();

} // namespace zdt::assets
