#pragma once

#include "editor/problemRows.h"
#include "model/fileResNode.h"
#include "model/pictureSize.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zdt {

/// What is known of a file and its place.
struct FileFacts {
    std::vector<SizeRange> sizes;            ///< That the place takes; none means any.
    std::uint64_t maxBytes = 0;              ///< That the place takes; 0 means any.
    std::uint32_t kinds = fileKind::other;   ///< That the place takes; `fileKind` bits.
    std::uint64_t bytes = 0;                 ///< Of the file; 0 if there is none.
    PictureSize size;                        ///< Of the file, whatever its name says; 0 x 0 for no picture.
    std::uint32_t content = fileKind::other; ///< The kind that the file's content tells.
};

/// Reads what is known of a place's file.
[[nodiscard]] FileFacts factsOf(const FileResNode& place, const std::string& file);

/// Why a file is refused, with the facts that help. Empty for a code that needs none: its own text says all.
[[nodiscard]] std::vector<Sentence> fileReason(int code, const FileFacts& facts);

/// Why a problem is one. `theme` may be null, and the node missing: then the code's own text says it.
[[nodiscard]] std::vector<Sentence> reasonOf(const ThemeResource* theme, const Problem& problem);

} // namespace zdt
