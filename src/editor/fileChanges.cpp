#include "editor/fileChanges.h"

#include "support/fileComparison.h"
#include "support/files.h"

#include <utility>

namespace zdt {

FileChanges::FileChanges(QObject* parent)
    : QObject(parent) {
    _worker.setMaxThreadCount(1);
}

FileChanges::~FileChanges() {
    _ending = true;
    _worker.waitForDone();
}

std::optional<bool> FileChanges::differs(const std::string& file, const std::string& standing) {
    const std::string one = fileStamp(file);
    const std::string other = fileStamp(standing);
    if (one.empty() || other.empty())
        return one.empty() != other.empty();
    if (fileSize(file) != fileSize(standing))
        return true;
    const std::string stamp = one + '\n' + other;
    const auto [entry, isNew] = _known.try_emplace(stamp);
    if (isNew)
        _asked.push_back({stamp, file, standing});
    return entry->second;
}

void FileChanges::forget() {
    _known.clear();
    _asked.clear();
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
            for (const auto& [stamp, differs] : results) {
                if (const auto asked = _known.find(stamp); asked != _known.end())
                    asked->second = differs;
            }
            emit known();
        },
        Qt::QueuedConnection);
}

} // namespace zdt
