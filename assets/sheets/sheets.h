#pragma once

#include "assets/sheets/sheet.h"
#include "assets/sheets/templateFiles.h"

/// What a template holds, group by group.
namespace zdt::assets {

/// All icons large and small, those that move, and how a foreign one is framed.
[[nodiscard]] Sheet iconSheet(const TemplateFolder& folder);
/// Keys of the dial pad, and the pictures of the lock screens.
[[nodiscard]] Sheet digitSheet(const TemplateFolder& folder);
/// Nine-patches with their guide lines, and stretched.
[[nodiscard]] Sheet ninePatchSheet(const TemplateFolder& folder);
/// Plain pictures of controls.
[[nodiscard]] Sheet symbolSheet(const TemplateFolder& folder);
/// The lock screens on phones: plain, charging, with music, and the slide lock.
[[nodiscard]] Sheet lockSheet(const TemplateFolder& folder);
/// Wallpapers with a clock on them.
[[nodiscard]] Sheet wallpaperSheet(const TemplateFolder& folder);
/// Previews on phones.
[[nodiscard]] Sheet previewSheet(const TemplateFolder& folder);

} // namespace zdt::assets
