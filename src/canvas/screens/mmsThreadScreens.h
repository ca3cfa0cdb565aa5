#pragma once

#include "canvas/screens/screenLayer.h"

namespace zdt::mms {

/// A conversation being written, with the panel of attachments.
[[nodiscard]] Screen conversationScreen();
/// What services send: cards, links and a menu.
[[nodiscard]] Screen smartMessageScreen();

} // namespace zdt::mms
