#include "packaging/archive.h"
#include "packaging/zipFolder.h"
#include "support/files.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <thread>

/// Packing on all cores. Almost all the time of an archive goes into deflating, which libzip does when it is closed,
/// one entry after the other; entries that are deflated already are only copied.
namespace zdt {

namespace {

struct Entry {
    std::string name;
    bool isFolder = false;
    std::uint64_t size = 0; ///< Bytes of a file.
    std::size_t part = 0;   ///< The part archive that holds a file.
    zip_uint64_t index = 0; ///< Its place in there.
};

/// Lists what `ZipFolder` adds, in its order.
bool collect(const std::string& folder, const std::string& prefix, std::vector<Entry>& entries) {
    const std::optional<std::vector<FolderEntry>> found = listEntries(folder + prefix);
    if (!found)
        return false;
    for (const FolderEntry& each : *found) {
        const std::string name = prefix + each.name;
        if (!each.isFolder)
            entries.push_back({name, false, fileSize(folder + name)});
        else if (!collect(folder, name + "/", entries))
            return false;
        else
            entries.push_back({name + "/", true});
    }
    return true;
}

/// Shares the files out, the largest first and each to the part that has the least to do.
std::vector<std::vector<Entry*>> shareOut(std::vector<Entry>& entries, std::size_t partCount) {
    std::vector<Entry*> files;
    for (Entry& entry : entries) {
        if (!entry.isFolder)
            files.push_back(&entry);
    }
    std::stable_sort(files.begin(), files.end(), [](const Entry* a, const Entry* b) { return a->size > b->size; });
    std::vector<std::vector<Entry*>> parts(std::min(partCount, files.size()));
    std::vector<std::uint64_t> loads(parts.size());
    for (Entry* file : files) {
        const auto least = static_cast<std::size_t>(std::min_element(loads.begin(), loads.end()) - loads.begin());
        file->part = least;
        file->index = parts[least].size();
        parts[least].push_back(file);
        loads[least] += file->size + 1;
    }
    return parts;
}

bool writePart(const std::string& folder, const std::vector<Entry*>& files, const std::string& path) {
    ArchivePointer archive = openArchive(path, ZIP_CREATE | ZIP_TRUNCATE);
    return archive &&
           std::all_of(files.begin(), files.end(),
                       [&](const Entry* file) { return addFile(archive.get(), folder + file->name, file->name); }) &&
           closeArchive(std::move(archive));
}

bool addPacked(zip_t* archive, zip_t* part, const Entry& entry) {
    constexpr zip_int64_t whole = -1;
    zip_source_t* source = zip_source_zip(archive, part, entry.index, 0, 0, whole);
    return source && addSource(archive, source, entry.name);
}

} // namespace

bool ZipFolderOnAllCores(const std::string& folderPath, const std::string& archivePath, const std::string& workFolder,
                         const Progress& progress) {
    std::vector<Entry> entries;
    if (folderPath.empty() || archivePath.empty() || !collect(folderPath, {}, entries))
        return false;
    const std::vector<std::vector<Entry*>> parts =
        shareOut(entries, 2U * std::max(1U, std::thread::hardware_concurrency()));
    const auto partPath = [&](std::size_t part) { return workFolder + "part" + std::to_string(part); };
    if (!parallelFor(
            parts.size(), [&](std::size_t part) { return writePart(folderPath, parts[part], partPath(part)); },
            progress))
        return false;

    std::vector<ArchivePointer> sources; // They are read when the archive is closed.
    for (std::size_t part = 0; part < parts.size(); ++part) {
        sources.push_back(openArchive(partPath(part), ZIP_RDONLY));
        if (!sources.back())
            return false;
    }
    ArchivePointer archive = openArchive(archivePath, ZIP_CREATE | ZIP_TRUNCATE);
    return archive &&
           std::all_of(entries.begin(), entries.end(),
                       [&](const Entry& entry) {
                           return entry.isFolder ? zip_dir_add(archive.get(), entry.name.c_str(), ZIP_FL_ENC_UTF_8) >= 0
                                                 : addPacked(archive.get(), sources[entry.part].get(), entry);
                       }) &&
           closeArchive(std::move(archive));
}

} // namespace zdt
