#include "packaging/unpackGuard.h"

#include "packaging/archive.h"
#include "support/files.h"
#include "support/text.h"

#include <sys/stat.h>

namespace zdt {

namespace {

bool isLink(zip_t* archive, zip_uint64_t index) {
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    constexpr unsigned modeShift = 16; // The upper half holds the mode of a file that was packed under Unix.
    return zip_file_get_external_attributes(archive, index, 0, &system, &attributes) == 0 && system == ZIP_OPSYS_UNIX &&
           S_ISLNK(attributes >> modeShift);
}

ArchiveVerdict inspectEntry(zip_t* archive, zip_uint64_t index, UnpackBudget& budget) {
    zip_stat_t status;
    const char* name = zip_get_name(archive, index, ZIP_FL_ENC_RAW);
    if (!name || zip_stat_index(archive, index, 0, &status) != 0 || (status.valid & ZIP_STAT_SIZE) == 0)
        return ArchiveVerdict::unreadable;
    const bool encrypted = (status.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && status.encryption_method != ZIP_EM_NONE;
    if (encrypted || !isSafeEntryName(name) || isLink(archive, index))
        return ArchiveVerdict::unsafe;
    if (status.size > budget.bytes)
        return ArchiveVerdict::tooLarge;
    budget.bytes -= status.size;
    return ArchiveVerdict::good;
}

} // namespace

bool isSafeEntryName(std::string_view name) {
    const bool hasDrive = name.size() > 1 && name[1] == ':';
    if (name.empty() || name.front() == '/' || hasDrive || name.find('\\') != std::string_view::npos ||
        !isXmlText(name))
        return false;
    while (!name.empty()) {
        const std::size_t slash = name.find('/');
        if (name.substr(0, slash) == "..")
            return false;
        name.remove_prefix(slash == std::string_view::npos ? name.size() : slash + 1);
    }
    return true;
}

ArchiveVerdict inspectArchive(const std::string& archivePath, UnpackBudget& budget) {
    const ArchivePointer archive =
        isPlainFile(archivePath) ? openArchive(archivePath, ZIP_RDONLY) : ArchivePointer(nullptr, &zip_discard);
    if (!archive)
        return ArchiveVerdict::unreadable;
    const zip_uint64_t count = entryCount(archive.get());
    UnpackBudget rest = budget;
    if (count > rest.entries)
        return ArchiveVerdict::tooLarge;
    rest.entries -= count;
    for (zip_uint64_t index = 0; index < count; ++index) {
        const ArchiveVerdict verdict = inspectEntry(archive.get(), index, rest);
        if (verdict != ArchiveVerdict::good)
            return verdict;
    }
    budget = rest;
    return ArchiveVerdict::good;
}

} // namespace zdt
