#pragma once

#include "model/resNode.h"

#include <sys/stat.h>

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace zdt {

/// A range of allowed pixel sizes.
struct SizeRange {
    std::uint32_t minWidth = 0;
    std::uint32_t widthLimit = 0; ///< Exclusive.
    std::uint32_t minHeight = 0;
    std::uint32_t heightLimit = 0; ///< Exclusive.

    constexpr SizeRange(std::uint32_t smallestWidth, std::uint32_t limitOfWidth, std::uint32_t smallestHeight,
                        std::uint32_t limitOfHeight)
        : minWidth(smallestWidth)
        , widthLimit(limitOfWidth)
        , minHeight(smallestHeight)
        , heightLimit(limitOfHeight) {}
    /// Exactly that size.
    constexpr SizeRange(std::uint32_t width, std::uint32_t height)
        : SizeRange(width, width + 1, height, height + 1) {}
    /// Exactly that square.
    explicit constexpr SizeRange(std::uint32_t side)
        : SizeRange(side, side) {}

    [[nodiscard]] constexpr bool contains(std::uint32_t width, std::uint32_t height) const {
        return width >= minWidth && width < widthLimit && height >= minHeight && height < heightLimit;
    }

    friend bool operator==(const SizeRange&, const SizeRange&) = default;
};

/// The kinds of file, told by the extension alone; bits of a set.
namespace fileKind {
inline constexpr std::uint32_t png = 1;     ///< ".png", in upper or lower case.
inline constexpr std::uint32_t jpeg = 2;    ///< ".jpg", in upper or lower case.
inline constexpr std::uint32_t other = 128; ///< Anything else, ".jpeg" too, and no extension.
} // namespace fileKind

[[nodiscard]] std::uint32_t fileKindOf(const std::string& path);

/// A leaf that stands for one file of a theme. Its name is the file's name in the theme, its value the path of the
/// current file. Setting a value checks a file and copies it into the theme at once, so that the theme directory is
/// always the current state.
class FileResNode : public ResNode {
public:
    static constexpr std::uint64_t defaultMaxBytes = 1024ULL * 1024;

    using ResNode::ResNode;

    /// The allowed pixel sizes; none means any.
    [[nodiscard]] const std::vector<SizeRange>& sizeRanges() const { return _sizeRanges; }
    /// The largest allowed file in bytes, inclusive; 0 means no limit.
    [[nodiscard]] std::uint64_t maxBytes() const { return _maxBytes; }
    /// A set of `fileKind` bits.
    [[nodiscard]] std::uint32_t allowedKinds() const { return _allowedKinds; }
    void setSizeRange(SizeRange range) { _sizeRanges.assign(1, range); }
    void setSizeRanges(std::vector<SizeRange> ranges) { _sizeRanges = std::move(ranges); }
    void setMaxBytes(std::uint64_t bytes) { _maxBytes = bytes; }
    void setAllowedKinds(std::uint32_t kinds) { _allowedKinds = kinds; }

    /// Copies the current file to its place under the root's directory of this moment.
    [[nodiscard]] bool save(bool all) override;
    /// Checks existence (-2), byte size (-20), kind (-21) and pixel size (-23, -22), in this order.
    [[nodiscard]] int validate(const std::string& value) override;
    /// `validate`, then copies the file into the theme (-17, -3). With no theme directory the path itself is the value.
    [[nodiscard]] int setValue(const std::string& value) override;
    /// The file's path in the template of the root's generation; empty for a node with no directory.
    [[nodiscard]] std::string defaultValue() const override;

    /// Where the file belongs: `nodeDirectory` and the name; empty without a directory.
    [[nodiscard]] std::string targetPath() const;
    /// Takes over the file that stands at `targetPath`, if one does: the value is its path if it passes `validate`, and
    /// empty otherwise.
    void loadFromTheme();

private:
    [[nodiscard]] int codeOf(const std::string& path, const struct stat& status) const;
    [[nodiscard]] int pictureSizeCode(const std::string& path, std::uint32_t kind) const;

    std::vector<SizeRange> _sizeRanges;
    std::uint64_t _maxBytes = defaultMaxBytes;
    std::uint32_t _allowedKinds = fileKind::other;
};

/// The side of an icon in pixels, and the one that generations 5 and 8 take as well.
inline constexpr std::uint32_t iconSide = 192;
inline constexpr std::uint32_t largeIconSide = 256;

/// The sizes of an icon: 192 x 192 alone, or 256 x 256 as well when not `strict`.
[[nodiscard]] std::vector<SizeRange> iconSizes(bool strict);

/// A PNG icon of `iconSizes`.
[[nodiscard]] std::unique_ptr<FileResNode> makeIconNode(const std::string& name, const std::string& path, bool strict);
[[nodiscard]] std::vector<std::unique_ptr<FileResNode>> makeIconNodes(const std::vector<std::string>& names,
                                                                      const std::string& path, bool strict);
/// With a mask for each name; empty if the lists differ in length.
[[nodiscard]] std::vector<std::unique_ptr<FileResNode>> makeIconNodes(const std::vector<TypeMask>& masks,
                                                                      const std::vector<std::string>& names,
                                                                      const std::string& path, bool strict);

/// The largest preview picture in bytes.
inline constexpr std::uint64_t previewMaxBytes = 307200;
/// The width of the phone's screen in pixels, and its height below generation 9 and from it on.
inline constexpr std::uint32_t screenWidth = 1080;
inline constexpr std::uint32_t screenHeight = 1920;
inline constexpr std::uint32_t tallScreenHeight = 2160;

/// The exact size of a preview picture, by its name. `tall` is true for generation 9.
[[nodiscard]] SizeRange previewSize(const std::string& name, bool tall);
/// Whether the name is one of the three preview pictures that are no screens: the cover and the two small icons.
[[nodiscard]] bool isProtectedPreview(std::string_view name);

/// A JPEG preview picture of `previewSize`.
[[nodiscard]] std::unique_ptr<FileResNode> makePreviewNode(const std::string& name, const std::string& path, bool tall);

} // namespace zdt
