#pragma once

#include "lockscreen/layoutDocument.h"
#include "model/resNode.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zdt {

/// The freely designed lock screen: a layout document below "unlock/layout-hdpi/" and the pictures that it names, in
/// "unlock/drawable-hdpi/". A theme of generation 5 may hold the design in two forms; the full one, whose positions
/// follow the screen's height, is the one that counts.
class AmazingUnlockNode : public ResNode {
public:
    explicit AmazingUnlockNode(ResNode* parent);

    /// Writes the layout, and copies the pictures if the root's directory isn't the one that the design was read from.
    /// A layout that couldn't be read is never written over.
    [[nodiscard]] bool save(bool all) override;
    /// With the lock screen's type "amazing": -2 if the layout can't be read or a picture that it names is missing. 0
    /// with any other type.
    [[nodiscard]] int validate(const std::string& value) override;

    /// Whether the layout was there and could be read.
    [[nodiscard]] bool isReadable() const { return _readable; }
    [[nodiscard]] const LayoutElements& elements() const { return _elements; }
    /// The files below the theme directory that the design needs and lacks, each once.
    [[nodiscard]] std::vector<std::string> missingFiles() const;

    /// Pixels: 1920, or 2160 from generation 9 on.
    [[nodiscard]] std::uint32_t screenHeight() const { return _screenHeight; }
    void setScreenHeight(std::uint32_t height) { _screenHeight = height; }
    /// Whether the lock screen shows a wallpaper of its own.
    [[nodiscard]] bool hasWallpaper() const { return _hasWallpaper; }
    void setHasWallpaper(bool has) { _hasWallpaper = has; }

private:
    [[nodiscard]] std::string layoutPath(const std::string& themeDirectory, bool full) const;
    [[nodiscard]] bool copyPictures(const std::string& targetTheme) const;

    std::string _layoutName;
    std::string _themeDirectory; ///< From which the design was read.
    std::uint32_t _screenHeight;
    LayoutElements _elements;
    LayoutElements _fixedElements; ///< The form for a fixed height, as read, beside a full one.
    bool _isFull = false;
    bool _readable = false;
    bool _isFixedReadable = true;
    bool _hasWallpaper = false;
};

} // namespace zdt
