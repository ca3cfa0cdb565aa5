#pragma once

#include "canvas/inkMask.h"
#include "canvas/pointFile.h"
#include "kit/skinFolder.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace zdt {

/// The shapes of the pictures that take a colour, by path: each is found out once and then kept, those of the skin in a
/// file too. For the interface's thread.
class ImagePoints {
public:
    explicit ImagePoints(SkinRoots roots = skinRoots());

    /// Where a picture stands: one of the skin may be named by "./skin/…".
    [[nodiscard]] std::string fileOf(const std::string& picture) const;
    /// The shape of a picture; null if it can't be read. A picture is read again once it was replaced.
    [[nodiscard]] std::shared_ptr<const InkMask> of(const std::string& picture);

private:
    struct Held {
        std::string stamp;
        std::shared_ptr<const InkMask> mask;
        std::uint64_t usedAt = 0;
        std::size_t bytes = 0;
        bool isRead = false; ///< Also one that couldn't be.
    };

    [[nodiscard]] std::shared_ptr<const InkMask> read(const std::string& picture);
    /// What the file calls a picture: its path from "skin/" on. Empty for one that isn't the skin's, or is too long.
    [[nodiscard]] std::string storedName(const std::string& picture) const;
    void trim();

    SkinRoots _roots;
    PointFile _file;
    std::map<std::string, Held> _held;
    std::uint64_t _uses = 0;
    std::size_t _bytes = 0; ///< Of all that are held.
};

/// That of the process, with its file in the workspace.
[[nodiscard]] ImagePoints& imagePoints();

} // namespace zdt
