#pragma once

#include "lockscreen/amazingChild.h"

#include <memory>

namespace zdt {

/// What an `image` of the document's top level is.
enum class ImageKind { wallpaper, decoration, hour1, hour2, min1, min2, clock, plain };

/// Tells the images of a document apart, one after the other in its order: whether a picture that doesn't change with
/// the time belongs to the clock depends on the digits in front of it.
class ImageRules {
public:
    [[nodiscard]] ImageKind next(const AmazingChild& image);

    /// 1, 2, 4 and 8 for the digits hour1, hour2, min1 and min2, 16 for the clock's other picture.
    [[nodiscard]] unsigned clockBits() const { return _clockBits; }

private:
    ImageKind take(unsigned bit, ImageKind kind);

    unsigned _clockBits = 0;
};

inline constexpr const char* imageTag = "image";

/// The same element as the class that stands for images of that kind.
[[nodiscard]] std::unique_ptr<AmazingChild> asKind(ImageKind kind, std::unique_ptr<AmazingChild> image);
/// Whether an image has that class.
[[nodiscard]] bool isOfKind(const AmazingChild& image, ImageKind kind);

} // namespace zdt
