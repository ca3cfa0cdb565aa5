#pragma once

#include <zip.h>

#include <memory>
#include <string>

/// For this room alone: archives that close themselves.
namespace zdt {

/// An archive that is discarded, unchanged, unless it is released and closed.
using ArchivePointer = std::unique_ptr<zip_t, void (*)(zip_t*)>;

inline ArchivePointer openArchive(const std::string& path, int flags) {
    int error = 0;
    return {zip_open(path.c_str(), flags, &error), &zip_discard};
}

inline bool closeArchive(ArchivePointer archive) {
    zip_t* pointer = archive.release();
    if (zip_close(pointer) == 0)
        return true;
    zip_discard(pointer); // A failed close leaves the archive open.
    return false;
}

inline zip_uint64_t entryCount(zip_t* archive) {
    const zip_int64_t count = zip_get_num_entries(archive, ZIP_FL_UNCHANGED);
    return count < 0 ? 0 : static_cast<zip_uint64_t>(count);
}

} // namespace zdt
