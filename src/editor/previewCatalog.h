#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What the list of previews shows, and where.
namespace zdt {

/// A picture of the list.
struct PreviewPicture {
    std::string name;     ///< Such as "preview_unlock_0.jpg".
    std::string file;     ///< Empty if the theme has none that fits.
    bool isSpare = false; ///< Not in the theme, which may have one more.
};

struct PreviewSection {
    std::string_view name; ///< Of its control, such as "preview_unlock".
    std::string_view captionKey;
    bool isDrawn = false; ///< Whether the program draws its pictures, so that none is replaced by the author.
    std::vector<PreviewPicture> pictures;
};

/// The name of a numbered preview in its parts.
struct NumberedPreview {
    std::string prefix; ///< Such as "preview_mms_".
    unsigned number = 0;
};

/// Nothing for the name of any other picture.
[[nodiscard]] std::optional<NumberedPreview> numberedPreview(const std::string& name);

/// The sections that hold a picture: the six groups, and behind them the pictures that the program draws; in the
/// reduced mode all pictures of no group. Generation 9 has places for three pictures of the contacts.
/// @param pictures name and file of each preview of the theme
[[nodiscard]] std::vector<PreviewSection>
previewSections(const std::vector<std::pair<std::string, std::string>>& pictures, unsigned generation, bool reduced);

/// The words for a picture of a section: its module, with a number where the section has several.
[[nodiscard]] std::string captionNumber(const PreviewSection& section, const std::string& name);

/// Where a section lies in a grid of cards.
struct SectionPlace {
    int row = 0;
    int column = 0;
    int span = 1; ///< Columns.
    int rows = 1; ///< More than one for a section that is wider than the grid.

    friend bool operator==(const SectionPlace&, const SectionPlace&) = default;
};

/// Places sections of so many cards each behind one another. One that doesn't fit into what is left of a row begins the
/// next, and one wider than the grid takes whole rows. `columns` is at least 1.
[[nodiscard]] std::vector<SectionPlace> placeSections(const std::vector<int>& counts, int columns);

} // namespace zdt
