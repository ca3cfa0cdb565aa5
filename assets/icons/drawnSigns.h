#pragma once

#include "assets/icons/relief.h"

#include <QPointF>

/// The signs of the most seen icons, drawn for them: pieces in a box of 96 about the middle, from the lowest on.
namespace zdt::assets::drawn {

using Draw = Pieces (*)(const Material& material);

// drawnDevices.cpp
[[nodiscard]] Pieces lens(const Material& material);
[[nodiscard]] Pieces camera(const Material& material);
[[nodiscard]] Pieces calculator(const Material& material);
[[nodiscard]] Pieces clock(const Material& material);
[[nodiscard]] Pieces clockDial(const Material& material); ///< The clock without its hands.
[[nodiscard]] Pieces compass(const Material& material);
[[nodiscard]] Pieces gear(const Material& material);
[[nodiscard]] Pieces mirror(const Material& material);
[[nodiscard]] Pieces record(const Material& material);

// drawnPapers.cpp
[[nodiscard]] Pieces calendar(const Material& material);
[[nodiscard]] Pieces calendarPage(const Material& material); ///< The calendar without its day.
[[nodiscard]] Pieces contacts(const Material& material);
[[nodiscard]] Pieces envelope(const Material& material);
[[nodiscard]] Pieces folder(const Material& material);
[[nodiscard]] Pieces notepad(const Material& material);
[[nodiscard]] Pieces simCardOne(const Material& material);
[[nodiscard]] Pieces simCardTwo(const Material& material);

// drawnScenes.cpp
[[nodiscard]] Pieces blossom(const Material& material);
[[nodiscard]] Pieces cloud(const Material& material);
[[nodiscard]] Pieces landscape(const Material& material);
[[nodiscard]] Pieces sunAndCloud(const Material& material);

// drawnTalk.cpp
[[nodiscard]] Pieces film(const Material& material);
[[nodiscard]] Pieces globe(const Material& material);
[[nodiscard]] Pieces heart(const Material& material);
[[nodiscard]] Pieces message(const Material& material);
[[nodiscard]] Pieces microphone(const Material& material);
[[nodiscard]] Pieces notes(const Material& material);
[[nodiscard]] Pieces paints(const Material& material);
[[nodiscard]] Pieces recordedCall(const Material& material);
[[nodiscard]] Pieces soundWave(const Material& material);

} // namespace zdt::assets::drawn
