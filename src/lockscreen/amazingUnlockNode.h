#pragma once

#include "lockscreen/lockDesign.h"
#include "model/resNode.h"
#include "support/xmlFile.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace zdt {

/// How long each picture of the wallpaper shows.
enum class WallpaperInterval { minute, tenMinutes, hour };

/// A picture of the wallpaper, by the paths of its files. The second is empty in a design of one height.
struct WallpaperPictures {
    std::string file1920;
    std::string file2160;
};

/// The freely designed lock screen: a layout document below "unlock/layout-hdpi/" and the pictures that it names, in
/// "unlock/drawable-hdpi/". A theme of generation 5 holds the design in two forms; the full one, whose positions follow
/// the screen's height, is the one that counts.
///
/// A picture is copied into the theme as it is given; the layout is written by `save`, which then removes the pictures
/// that no element names any more. So what stands on disk is whole at every moment.
class AmazingUnlockNode : public ResNode {
public:
    explicit AmazingUnlockNode(ResNode* parent);

    /// Writes the layout in the form of the theme's generation, and copies the pictures if the root's directory isn't
    /// the one that the design was read from. A layout that couldn't be read is never written over until a new design
    /// is started. A theme of the type "video" that is saved elsewhere gets a layout of the date alone; the project
    /// keeps its design.
    [[nodiscard]] bool save(bool all) override;
    /// With the lock screen's type "amazing": -4 if a picture of the music control is missing, -2 if the layout or
    /// another picture that it names is. With "video", -2 without the video. 0 with any other type.
    [[nodiscard]] int validate(const std::string& value) override;

    /// A file that the lock screen needs and lacks.
    struct Missing {
        std::string path; ///< Relative to the theme directory.
        int code = 0;     ///< -4 for a picture of the music control, -24 for a damaged layout, else -2.
    };
    /// What a design needs, each file once and in the design's order.
    [[nodiscard]] std::vector<Missing> missingFiles() const;

    [[nodiscard]] const std::string& layoutName() const { return _layoutName; }
    /// Whether the layout was there and could be read, or a new design was started.
    [[nodiscard]] bool isReadable() const { return _readable; }
    /// Whether a layout is there but couldn't be read.
    [[nodiscard]] bool isDamaged() const { return !_damaged.path().empty(); }
    [[nodiscard]] const LockDesign& design() const { return _design; }
    [[nodiscard]] LockDesign& design() { return _design; }
    /// Starts a new design in place of what was there. A layout that couldn't be read is kept aside when it is saved.
    void startNewDesign();

    /// Pixels: 1920, or 2160 from generation 9 on.
    [[nodiscard]] std::uint32_t screenHeight() const { return _screenHeight; }
    void setScreenHeight(std::uint32_t height);
    /// Whether the lock screen shows a wallpaper of its own.
    [[nodiscard]] bool hasWallpaper() const { return _hasWallpaper; }
    void setHasWallpaper(bool has) { _hasWallpaper = has; }

    /// Where a picture of the design stands.
    [[nodiscard]] std::string pictureFile(const std::string& name) const;
    /// Copies a picture into the design, under a name that is free and safe there: letters, digits, "_" and ".". One
    /// that stands there already under such a name is used as it is.
    /// @param name receives the bare file name
    /// @return 0; -2 without the file, -20 if it is empty or larger than 10 MiB, -23 if it is neither PNG nor JPEG, -3
    ///         if it can't be copied
    [[nodiscard]] int importPicture(const std::string& file, std::string& name);
    /// Puts a picture in the place of one that an element names.
    /// @return 0; -6 for a name that no element has; -21 for a picture of another kind than the name says; else the
    ///         codes of `importPicture`
    [[nodiscard]] int replacePicture(const std::string& name, const std::string& file) const;
    /// 0 if it may be replaced so, or the code.
    [[nodiscard]] int checkReplacement(const std::string& name, const std::string& file) const;

    // The wallpaper's pictures come in pairs for the two screen heights, or all of one height.

    [[nodiscard]] std::vector<WallpaperPictures> wallpaperPictures() const;
    /// Nothing for a wallpaper that changes at other times.
    [[nodiscard]] std::optional<WallpaperInterval> wallpaperInterval() const;
    /// Gives the wallpaper its pictures, copying them all.
    /// @return 0; -1 without a design; -9 for none, for more than the interval can show, and for halves of pairs among
    ///         them; -21 for a picture that is no JPEG; else the codes of `importPicture`
    [[nodiscard]] int setWallpaperPictures(const std::vector<WallpaperPictures>& pictures, WallpaperInterval interval);

private:
    [[nodiscard]] std::string layoutPath(const std::string& themeDirectory, bool full) const;
    [[nodiscard]] std::set<std::string> namedPictures() const;
    void readDesign();
    [[nodiscard]] bool copyPictures(const std::string& targetTheme) const;
    [[nodiscard]] bool writeForms(const std::string& target);
    [[nodiscard]] bool writeVideoLayout(const std::string& target) const;
    void removeUnnamedPictures();
    [[nodiscard]] std::string typeOfLock() const;
    [[nodiscard]] bool hasVideo() const;
    [[nodiscard]] std::string freePictureName(const std::string& file) const;
    [[nodiscard]] std::string freeWallpaperPrefix() const;
    [[nodiscard]] int copyWallpaper(const std::vector<WallpaperPictures>& pictures, const std::string& prefix);

    std::string _layoutName;
    std::string _themeDirectory; ///< From which the design was read.
    std::uint32_t _screenHeight;
    LockDesign _design;
    /// The pictures that the layout on disk names, and those that came since: what may be removed when it is in use no
    /// more. Others in the folder are the author's.
    std::set<std::string> _ownPictures;
    DamagedFile _damaged;
    bool _readable = false;
    bool _hasWallpaper = false;
};

/// The code of a music control that lacks a picture.
inline constexpr int incompleteMusic = -4;

/// The largest picture of a design in bytes.
inline constexpr std::uint64_t maxDesignPictureBytes = 0xa00000;

/// How many pictures an interval can show in turn: the values of the digit of the clock that changes with it.
[[nodiscard]] std::size_t maxWallpaperPictures(WallpaperInterval interval);

} // namespace zdt
