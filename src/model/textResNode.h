#pragma once

#include "model/resNode.h"
#include "support/pattern.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace zdt {

/// A leaf with a text for its value and an optional rule for it.
class TextResNode : public ResNode {
public:
    explicit TextResNode(std::string name = {}, std::string value = {});
    explicit TextResNode(TypeMask mask, std::string name = {}, std::string value = {});

    /// The regular expression that a whole value must match; empty allows every value, the empty one too.
    [[nodiscard]] std::string regex() const { return _regex ? _regex->expression() : std::string(); }
    void setRegex(const std::string& expression) { setRegex(expression.empty() ? nullptr : &Pattern::of(expression)); }

    /// -18 for an empty value, -19 for one that doesn't match.
    [[nodiscard]] int validate(const std::string& value) override;
    [[nodiscard]] int setValue(const std::string& value) override;

protected:
    void setRegex(const Pattern* pattern) { _regex = pattern; }
    [[nodiscard]] bool hasRule(const Pattern& pattern) const { return _regex == &pattern; }

private:
    const Pattern* _regex = nullptr; ///< Null if every value is allowed.
};

/// The form of a colour: "#rrggbb", or "#aarrggbb" with the alpha in front. Group 1 is the alpha pair and may be empty,
/// group 2 the six colour digits.
inline constexpr std::string_view colorRegularPattern = "#([0-9a-fA-F]{2})?([0-9a-fA-F]{6})";

/// A text leaf that holds a colour. A key whose default is half transparent stays so: the author edits an alpha of 0 to
/// 255, and what is stored is scaled to the default's own.
class ColorTextResNode : public TextResNode {
public:
    static constexpr int opaque = 255;

    /// The limit of the alpha is that of `value`; there is none without a value or without alpha digits in it.
    explicit ColorTextResNode(std::string name = {}, std::string value = {});
    explicit ColorTextResNode(TypeMask mask, std::string name = {}, std::string value = {});

    [[nodiscard]] int validate(const std::string& value) override;

    /// The largest alpha that the colour may bear, 0 to 255.
    [[nodiscard]] int maxAlpha() const { return _maxAlpha; }
    void setMaxAlpha(std::uint8_t alpha) { _maxAlpha = alpha; }

    /// The alpha pair and the six colour digits of a colour; both empty for any other text.
    [[nodiscard]] std::pair<std::string, std::string> splitColour(const std::string& value) const;
    /// The number in a pair of hexadecimal digits; -1 for an empty text.
    [[nodiscard]] static int alphaOf(const std::string& pair);
    /// The digits of an alpha of 0 to 254, lower-case and two of them; empty for 255, which is never written.
    [[nodiscard]] static std::string formatAlpha(int alpha);
    /// Sets the value, its alpha scaled by `maxAlpha` / 255. -1 if it is no colour, and then the old value stays.
    [[nodiscard]] int applyAlphaLimit(const std::string& value);
    /// The value with the scaling undone, as an editor shows it.
    [[nodiscard]] std::string composeColour() const;

private:
    void becomeColour();

    std::uint8_t _maxAlpha = opaque;
};

} // namespace zdt
