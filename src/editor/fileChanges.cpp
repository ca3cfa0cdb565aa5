#include "editor/fileChanges.h"

#include "editor/keyRows.h"

#include <sys/stat.h>

#include <utility>

namespace zdt {

namespace {

struct Standing {
    struct stat status = {}; // Before what its making fills it for.
    bool exists = false;

    explicit Standing(const std::string& file)
        : exists(!file.empty() && ::stat(file.c_str(), &status) == 0) {}

    [[nodiscard]] std::string stamp(const std::string& file) const {
        if (!exists)
            return {};
        return file + '\n' + std::to_string(status.st_mtim.tv_sec) + '.' + std::to_string(status.st_mtim.tv_nsec) +
               '\n' + std::to_string(status.st_size);
    }
};

} // namespace

std::string fileStamp(const std::string& file) {
    return Standing(file).stamp(file);
}

FileChanges::FileChanges(QObject* parent)
    : QObject(parent) {
    _worker.setMaxThreadCount(1);
}

FileChanges::~FileChanges() {
    _ending = true;
    _worker.waitForDone();
}

std::optional<bool> FileChanges::differs(const std::string& file, const std::string& standing) {
    const Standing one(file);
    const Standing other(standing);
    if (!one.exists || !other.exists)
        return one.exists != other.exists;
    if (one.status.st_size != other.status.st_size)
        return true;
    const std::string stamp = one.stamp(file) + '\n' + other.stamp(standing);
    const auto [entry, isNew] = _known.try_emplace(stamp);
    if (isNew)
        _asked.push_back({stamp, file, standing});
    return entry->second;
}

void FileChanges::start() {
    if (_asked.empty())
        return;
    _worker.start([this, pairs = std::exchange(_asked, {})] { compare(pairs); });
}

void FileChanges::compare(const std::vector<Pair>& pairs) {
    std::vector<std::pair<std::string, bool>> results;
    for (const Pair& pair : pairs) {
        if (_ending)
            return;
        results.emplace_back(pair.stamp, !sameFiles(pair.file, pair.standing));
    }
    QMetaObject::invokeMethod(
        this,
        [this, results] {
            for (const auto& [stamp, differs] : results)
                _known[stamp] = differs;
            emit known();
        },
        Qt::QueuedConnection);
}

} // namespace zdt
