#pragma once

#include "support/files.h"

#include <malloc.h>
#include <zip.h>

#include <memory>
#include <string>

/// For this room alone: archives that close themselves.
namespace zdt {

/// An archive that is discarded, unchanged, unless it is released and closed.
using ArchivePointer = std::unique_ptr<zip_t, void (*)(zip_t*)>;

/// Deflating an entry takes some 260 KiB and frees them again. By default glibc gives them back to the system each time
/// and has them zeroed anew, which costs a quarter of an export's time.
inline void keepFreedMemory() {
    constexpr int mapThreshold = 4 * 1024 * 1024;
    constexpr int trimThreshold = 16 * 1024 * 1024;
    static const bool kept =
        mallopt(M_MMAP_THRESHOLD, mapThreshold) != 0 && mallopt(M_TRIM_THRESHOLD, trimThreshold) != 0;
    static_cast<void>(kept); // Without it everything works all the same.
}

inline ArchivePointer openArchive(const std::string& path, int flags) {
    keepFreedMemory();
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

/// Adds an entry and takes over its source.
inline bool addSource(zip_t* archive, zip_source_t* source, const std::string& entryName) {
    if (zip_file_add(archive, entryName.c_str(), source, ZIP_FL_ENC_UTF_8) >= 0)
        return true;
    zip_source_free(source);
    return false;
}

inline bool addFile(zip_t* archive, const std::string& path, const std::string& entryName) {
    // libzip looks for the file only when the archive is closed, and a missing one would then cost all others.
    zip_source_t* source = isPlainFile(path) ? zip_source_file(archive, path.c_str(), 0, 0) : nullptr;
    return source && addSource(archive, source, entryName);
}

inline zip_uint64_t entryCount(zip_t* archive) {
    const zip_int64_t count = zip_get_num_entries(archive, ZIP_FL_UNCHANGED);
    return count < 0 ? 0 : static_cast<zip_uint64_t>(count);
}

} // namespace zdt
