#pragma once

#include "assets/previews/previewSource.h"
#include "canvas/screens/screenLayer.h"

#include <QImage>

#include <string_view>

namespace zdt::assets {

/// A screen without the rows for which a low one with three keys has no place, nor the line of the gesture. What
/// reaches the lower edge still does.
[[nodiscard]] Screen lowered(Screen screen);

/// A screen of an application as the editor composes it, in the template's colours and pictures with English texts, as
/// high as the generation's screen. Null if there is none of that name.
[[nodiscard]] QImage composeScreen(const PreviewSource& source, std::string_view module, std::string_view name);

} // namespace zdt::assets
