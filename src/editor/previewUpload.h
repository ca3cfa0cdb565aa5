#pragma once

#include <QSize>

#include <string>

/// What an author's picture goes through before it becomes a preview. Plain work on files, for any thread.
namespace zdt {

/// The preview that is replaced.
struct PreviewTarget {
    std::string name;  ///< Such as "preview_unlock_0.jpg".
    bool tall = false; ///< Whether the theme is of generation 9, whose pictures are 2160 high.
};

struct PreparedPreview {
    std::string message; ///< Key of the message that tells why the picture isn't taken; empty if it is.
    std::string file;    ///< What to store: the given file, or one that was made of it.
};

/// Pixels of the picture that an author chooses.
[[nodiscard]] QSize uploadSize(bool tall);

/// Tests a picture: kind, at most 300 KB, and exactly `uploadSize`. One that isn't a JPEG of the size and bytes that
/// the target asks for is made one, as a file in `folder`, which ends in "/" and
/// is empty for none.
[[nodiscard]] PreparedPreview preparePreview(const std::string& file, const PreviewTarget& target,
                                             const std::string& folder);

} // namespace zdt
