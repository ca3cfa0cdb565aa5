#pragma once

#include "canvas/screens/screenBuilder.h"

#include <vector>

/// What the screens of the contacts have in common.
namespace zdt::contactsInk {

inline constexpr Ink background{"commonSetting/dial/background color", screenColour::field};
inline constexpr Ink pad{"contacts/dial/background color", screenColour::field};
inline constexpr Ink text{"contacts/contact list/first level icon text", screenColour::ink};
/// Second lines: the phone's keys for them are sources of the same item.
inline constexpr Ink softText = text.faded(150);
inline constexpr Ink accent{"contacts/dial/highlight color", screenColour::accent};
inline constexpr Ink boxText{"contacts/contact list/box icon text", screenColour::ink};
inline constexpr Ink white{{}, screenColour::paper};

} // namespace zdt::contactsInk

namespace zdt {

/// A line between rows, in the contacts' own colour where the generation has one.
void addSeparator(ScreenBuilder& screen, int y, int left = screenMargin, int right = phoneWidth - screenMargin);

/// A box, in the shared colour of boxes where the generation has one.
void addBox(ScreenBuilder& screen, const std::string& name, const Place& place, int radius);

[[nodiscard]] Screen contactDetailsScreen();
[[nodiscard]] Screen newContactScreen();

} // namespace zdt
