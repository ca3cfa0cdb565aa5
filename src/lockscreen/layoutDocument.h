#pragma once

#include "lockscreen/amazingChild.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// The lock screen's layout document: a root element `layout` with the attributes `frameRate` "30", `version` "3.0" and
/// `screenwidth` "1080", and the elements of the screen in it, in the order in which they are painted.
namespace zdt {

using LayoutElements = std::vector<std::unique_ptr<AmazingChild>>;

/// More elements, at any depth, than any lock screen has; a document with more isn't read.
inline constexpr std::size_t maxLayoutElements = 20000;
/// More picture names than all elements of a lock screen stand for, and more bytes of them; a document with more isn't
/// read.
inline constexpr std::size_t maxLayoutNames = 200000;
inline constexpr std::size_t maxLayoutNameBytes = 16 * 1024 * 1024;

/// Reads the elements as they stand, all of the plain class. False, with no elements, for a file that is missing, isn't
/// well formed, is larger or nests deeper than any layout, or has another root.
[[nodiscard]] bool readLayout(const std::string& path, LayoutElements& elements);

/// Writes the elements, making the folder. The file is written whole or not at all; false as well for more elements or
/// names than are read.
[[nodiscard]] bool writeLayout(const std::string& path, const LayoutElements& elements);

/// Rewrites the elements for a screen of one fixed height for as long as it lives: what counts from the lower edge
/// becomes a number, and the wallpaper names the files of that height. Afterwards all of that stands again as it did,
/// but a plain number in the lower half then counts from the lower edge.
class FixedHeightForm {
public:
    FixedHeightForm(const LayoutElements& elements, std::uint32_t height);
    ~FixedHeightForm();
    FixedHeightForm(const FixedHeightForm&) = delete;
    FixedHeightForm& operator=(const FixedHeightForm&) = delete;

private:
    struct Rewritten {
        AmazingChild* element;
        std::string key;
        std::string text; ///< As it stood.
    };
    void rewrite(AmazingChild& element, const std::string& key, const std::string& text);
    void fix(AmazingChild& element);
    void anchor(AmazingChild& element);

    const LayoutElements& _elements;
    std::uint32_t _height;
    std::vector<Rewritten> _rewritten;
};

} // namespace zdt
