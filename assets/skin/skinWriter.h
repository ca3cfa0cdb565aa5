#pragma once

#include <string>

namespace zdt::assets {

/// Draws the pictures of skinPictures.h, statusOverlays.h and easingPictures.h into the skin below the program folder,
/// and those of musicPictures.h into its "res/". What is there already and would be the same stays untouched; what
/// else is there stays too. False, said on standard error, if one can't be written. Needs a QGuiApplication.
/// @param program ends in "/"
[[nodiscard]] bool writeSkinPictures(const std::string& program);

} // namespace zdt::assets
