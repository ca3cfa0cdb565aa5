#pragma once

#include <string_view>

namespace zdt {

/// What a row's hint asks of a picture's size, in pixels.
struct SizeRule {
    enum class Kind {
        none,    ///< Any size is taken.
        atMost,  ///< Neither side may be larger.
        exactly, ///< Both sides must be so.
    };

    Kind kind = Kind::none;
    int width = 0;
    int height = 0;

    [[nodiscard]] bool allows(int pictureWidth, int pictureHeight) const;
    bool operator==(const SizeRule&) const = default;
};

/// The rule of a hint (UTF-8). One that holds "建议" or "Suggest" is advice and no rule; "≤100*80" sets limits; with
/// the star as the second to fifth character, "168*168" asks for that size. Anything else sets no rule, nor do numbers
/// below 1 or above 65535.
[[nodiscard]] SizeRule parseSizeHint(std::string_view hint);

} // namespace zdt
