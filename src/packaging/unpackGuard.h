#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// What is looked at before an archive from outside is unpacked.
namespace zdt {

/// How much a package may unpack to, its nested archives counted in. A large theme has some 600 entries and 20 MB.
struct UnpackBudget {
    std::uint64_t entries = 20000;
    std::uint64_t bytes = 1024ULL * 1024 * 1024;
};

enum class ArchiveVerdict {
    good,
    unreadable, ///< No archive, or a damaged one.
    unsafe,     ///< A name that leads out of the folder or isn't UTF-8, a link, or an encrypted entry.
    tooLarge,   ///< More than the budget.
};

/// Judges an archive by its directory alone, and takes what it holds from the budget if it is good.
[[nodiscard]] ArchiveVerdict inspectArchive(const std::string& archivePath, UnpackBudget& budget);

/// Whether an entry's name stays below the folder into which it is unpacked: relative, with no part "..", no "\", no
/// drive letter, and UTF-8 with no control characters.
[[nodiscard]] bool isSafeEntryName(std::string_view name);

} // namespace zdt
