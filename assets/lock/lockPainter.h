#pragma once

#include "assets/art/generation.h"
#include "assets/lock/lockScene.h"

#include <QImage>
#include <QSize>

#include <string>

namespace zdt::assets {

enum class LockForm { designed, slide };

/// A template's lock screen as the phone shows it: made of its wallpaper, its layout and the pictures that it names,
/// all as they stand on disk. Texts are those of an English phone.
/// @param templateDirectory ending in "/"; `wallpaper/` and the folder of the form must have been written
/// @param size of the picture. The screen is laid out 1080 wide and 1920 or 2160 high, whichever is nearer in its
///             proportions, and scaled to cover it.
/// @return null if wallpaper or layout can't be read; a missing picture of the layout is left out
[[nodiscard]] QImage paintLockScreen(const std::string& templateDirectory, QSize size, const Generation& generation,
                                     const LockScene& scene, LockForm form = LockForm::designed);

} // namespace zdt::assets
