#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// How many pictures a frame list takes. Nothing here shows or reads anything; messages are keys.
namespace zdt {

inline constexpr std::size_t maxStills = 10;
inline constexpr std::size_t maxStillsInModeOne = 9;
/// What one GIF may bring, and a list holds with it.
inline constexpr std::size_t maxGifFrames = 100;

/// What an upload adds to a list.
struct FrameIntake {
    std::size_t taken = 0;    ///< The first of those that were offered.
    std::string_view message; ///< Key of the message to show; empty when all are taken.
};

/// The most stills in a list with that mode value.
[[nodiscard]] std::size_t stillLimit(int mode);

/// Whether the list's item for adding is shown.
[[nodiscard]] bool hasRoomForFrame(std::size_t present, int mode);

/// The key of the message when a GIF isn't alone among the chosen files; empty if they may go together.
[[nodiscard]] std::string_view CheckFrameSelection(const std::vector<std::string>& paths);

/// Stills fill the list up to its limit; those beyond it are left out, with a message.
[[nodiscard]] FrameIntake takeStills(std::size_t present, std::size_t offered, int mode);

/// A GIF comes whole or not at all.
[[nodiscard]] FrameIntake takeGifFrames(std::size_t present, std::size_t frames);

} // namespace zdt
