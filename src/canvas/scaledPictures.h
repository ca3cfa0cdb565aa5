#pragma once

#include <QCache>
#include <QImage>
#include <QRect>
#include <QSize>

namespace zdt {

/// Parts of pictures in the sizes in which they were drawn last.
class ScaledPictures {
public:
    ScaledPictures();

    /// A part of a picture, smoothly scaled to `size` pixels; the picture itself if nothing is to be scaled. `size` is
    /// to be one that `canHold` takes.
    [[nodiscard]] QImage scaled(const QImage& picture, const QRect& part, const QSize& size);
    /// Whether a size is small enough to be made and kept.
    [[nodiscard]] static bool canHold(const QSize& size);

    struct Key {
        qint64 picture = 0;
        QRect part;
        QSize size;

        friend bool operator==(const Key&, const Key&) = default;
    };

private:
    QCache<Key, QImage> _pictures;
};

[[nodiscard]] std::size_t qHash(const ScaledPictures::Key& key, std::size_t seed) noexcept;

/// A picture in the form that is drawn the fastest.
[[nodiscard]] QImage paintable(const QImage& picture);

} // namespace zdt
