#pragma once

#include "model/resNode.h"
#include "support/damagedFile.h"

#include <cstdint>
#include <string>

namespace zdt {

/// The largest video of a lock screen or wallpaper in bytes.
inline constexpr std::uint64_t maxVideoBytes = 0xf00000;

/// The name of a lock screen's video where `ext.properties` gives none.
inline constexpr const char* defaultLockVideo = "unlock.mp4";

/// `ext.properties`, lines `key=value` for the engine that plays a video: a text child for each key. Like the video
/// itself it serves the lock screen below a parent named "video" and the wallpaper below one named "wallpaper".
class VideoUnlockConfig : public ResNode {
public:
    explicit VideoUnlockConfig(ResNode* parent);

    /// Without `all`, nothing is written unless the lock screen is a video. A file that couldn't be read is kept aside.
    /// False if the directory isn't known or the file can't be written.
    [[nodiscard]] bool save(bool all) override;

private:
    DamagedFile _damaged;
};

/// The video: one file child, named as `ext.properties` says.
class VideoUnlockImageSet : public ResNode {
public:
    explicit VideoUnlockImageSet(ResNode* parent);
};

/// A video in place of a lock screen.
class VideoUnlockNode : public ResNode {
public:
    explicit VideoUnlockNode(ResNode* parent);

    /// Writes `unlock/livepaper.xml`, which names the phone's service that plays the video. Without `all`, nothing is
    /// written unless the lock screen is a video.
    [[nodiscard]] bool save(bool all) override;
};

/// The directory, relative to the theme's, in which the phone looks for the files of a video or custom lock screen;
/// empty if the lock screen's configuration names none.
[[nodiscard]] std::string dynamicLockDirectory(const ResNode& unlock);

} // namespace zdt
