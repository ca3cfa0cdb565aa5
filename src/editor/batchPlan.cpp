#include "editor/batchPlan.h"

#include "editor/moduleWords.h"
#include "editor/pictureTable.h"
#include "editor/sizeHint.h"
#include "model/returnCode.h"
#include "packaging/pictureCheck.h"
#include "packaging/pictureConversion.h"
#include "support/files.h"
#include "support/text.h"

#include <QImage>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <map>
#include <set>

namespace zdt {

namespace {

constexpr std::uint64_t bytesPerKilobyte = 1024;
constexpr int batchCodeBase = 1000;
constexpr std::string_view plainEnding = ".png";
constexpr std::string_view patchEnding = ".9.png";

bool isPngName(std::string_view lowerName) {
    return lowerName.ends_with(plainEnding);
}

/// What is left of a name without what tells its kind.
std::string bareName(std::string_view lowerName) {
    for (const std::string_view ending : {patchEnding, plainEnding}) {
        if (lowerName.ends_with(ending))
            return std::string(lowerName.substr(0, lowerName.size() - ending.size()));
    }
    return std::string(lowerName.substr(0, lowerName.rfind('.')));
}

/// The rows of a page by their names.
class Rows {
public:
    explicit Rows(const std::vector<PictureGroup>& groups) {
        for (const PictureGroup& group : groups) {
            for (const PictureEntry& entry : group.entries) {
                const std::string lower = toLowerAscii(entry.name);
                _byName.emplace(lower, &entry);
                _byBareName.emplace(bareName(lower), &entry);
            }
        }
    }

    [[nodiscard]] const PictureEntry* named(const std::string& lower) const { return find(_byName, lower); }
    /// One that has the name but for the kind of file.
    [[nodiscard]] const PictureEntry* like(const std::string& lower) const {
        return find(_byBareName, bareName(lower));
    }

private:
    using Map = std::map<std::string, const PictureEntry*, std::less<>>;

    static const PictureEntry* find(const Map& map, const std::string& name) {
        const auto found = map.find(name);
        return found == map.end() ? nullptr : found->second;
    }

    Map _byName;
    Map _byBareName;
};

/// Tests the bytes and pixels of a file that has a row.
BatchState contentState(BatchFile& file) {
    const std::uint64_t bytes = fileSize(file.path);
    if (bytes / bytesPerKilobyte > pictureLimit)
        return BatchState::tooLarge;
    file.size = pngSize(file.path);
    if (file.size.width == 0 || file.size.height == 0)
        return BatchState::wrongType;
    const SizeRule rule = parseSizeHint(file.sizeHint.toStdString());
    const bool fits = file.size.width <= INT32_MAX && file.size.height <= INT32_MAX &&
                      rule.allows(static_cast<int>(file.size.width), static_cast<int>(file.size.height));
    if (!fits)
        return BatchState::wrongSize;
    // Its head may be sound, and the rest cut. A nine-patch is read by its compiler.
    const bool isWhole = file.name.ends_with(".9.png") || !loadPicture(file.path).isNull();
    return isWhole ? BatchState::fine : BatchState::unreadable;
}

/// Finds the row of a file and tests what its name and its presence tell.
BatchState nameState(BatchFile& file, const Rows& rows, std::string_view module) {
    const std::string lower = toLowerAscii(file.name);
    const PictureEntry* row = rows.named(lower);
    const bool hasOtherKind = !row && (row = rows.like(lower));
    if (row) {
        file.key = row->name;
        file.sizeHint = row->sizeHint;
    }
    if (!isPlainFile(file.path))
        return BatchState::unreadable;
    if (!isPrintableName(file.path))
        return BatchState::nameNotAllowed;
    if (!isPngName(lower))
        return BatchState::wrongType;
    if (hasOtherKind)
        return BatchState::wrongPatchKind;
    return !row && isPictureOf(module, file.name) ? BatchState::otherTheme : BatchState::fine;
}

void addFolder(const std::string& folder, std::vector<std::string>& files) {
    std::vector<std::string> names = listFiles(folder);
    std::sort(names.begin(), names.end());
    const std::string begin = folder.ends_with('/') ? folder : folder + "/";
    for (const std::string& name : names) {
        if (isPngName(toLowerAscii(name)))
            files.push_back(begin + name);
    }
}

} // namespace

std::string_view codeTextOf(BatchState state) {
    switch (state) {
    case BatchState::fine:
    case BatchState::otherTheme:
        return {};
    case BatchState::tooLarge:
        return "-16";
    case BatchState::doubled:
        return "-4";
    case BatchState::toolFailed:
        return "-40";
    case BatchState::compileRefused:
        return "-39";
    case BatchState::wrongSize:
        return "-22";
    case BatchState::wrongPatchKind:
        return "-19";
    case BatchState::nameNotAllowed:
        return "-5";
    case BatchState::wrongType:
        return "-23";
    case BatchState::unreadable:
        return "-41";
    }
    return {};
}

BatchState stateOfCode(int code) {
    switch (code) {
    case returnCode::success:
    case returnCode::notFound:
        return BatchState::fine;
    case returnCode::wrongByteSize:
        return BatchState::tooLarge;
    case returnCode::wrongDimensions:
        return BatchState::wrongSize;
    case returnCode::unprintableName:
    case returnCode::notAllowed:
        return BatchState::nameNotAllowed;
    case returnCode::wrongKind:
    case returnCode::unreadablePicture:
        return BatchState::wrongType;
    default:
        return BatchState::unreadable;
    }
}

std::size_t workerCount(std::size_t files) {
    return files <= filesPerRun ? 1 : (files + filesPerRun - 1) / filesPerRun;
}

std::vector<std::string> expandFiles(const std::vector<std::string>& given) {
    std::vector<std::string> files;
    for (const std::string& path : given) {
        if (isFolder(path))
            addFolder(path, files);
        else
            files.push_back(path);
    }
    return files;
}

std::size_t cutToBatch(std::vector<std::string>& files) {
    const std::size_t leftOut = files.size() - std::min(files.size(), maxBatchFiles);
    files.resize(files.size() - leftOut);
    return leftOut;
}

std::vector<BatchFile> planBatch(const std::vector<std::string>& files, std::string_view module,
                                 const std::vector<PictureGroup>& groups) {
    const Rows rows(groups);
    std::set<std::string> known;
    std::vector<BatchFile> plan;
    plan.reserve(files.size());
    for (const std::string& path : files) {
        BatchFile& file = plan.emplace_back();
        file.path = path;
        file.file = path;
        file.name = fileName(path);
        file.state = nameState(file, rows, module);
        const std::string lower = toLowerAscii(file.name);
        if (file.state == BatchState::fine && known.contains(lower))
            file.state = BatchState::doubled;
        if (file.isFit())
            file.state = contentState(file);
        // A file that isn't taken doesn't stand in the way of the next one.
        if (file.state == BatchState::fine)
            known.insert(lower);
    }
    return plan;
}

std::string_view BatchRefusal::code() const {
    return file.state == BatchState::fine ? unclaimedCode : codeTextOf(file.state);
}

std::string BatchRefusal::line() const {
    return module + "/" + std::string(code()) + " " + file.name;
}

std::vector<BatchRefusal> refusalsOf(std::string_view module, const std::vector<BatchFile>& files) {
    std::vector<BatchRefusal> refusals;
    for (const BatchFile& file : files) {
        const bool isUnclaimed = file.state == BatchState::fine && !file.isClaimed();
        if (isUnclaimed || !codeTextOf(file.state).empty())
            refusals.push_back({std::string(module), file});
    }
    return refusals;
}

std::vector<Problem> problemsOf(const BatchResult& result, const std::vector<PictureGroup>& groups) {
    std::map<std::string, const PictureEntry*> entries;
    for (const PictureGroup& group : groups) {
        for (const PictureEntry& entry : group.entries)
            entries.emplace(entry.name, &entry);
    }
    std::vector<Problem> problems;
    for (const BatchRefusal& refusal : result.refused) {
        const auto found = entries.find(refusal.file.key);
        const int code = batchProblemCode(refusal.code());
        if (found != entries.end())
            problems.push_back({found->second->places.front().key(), {}, code});
        else
            problems.push_back({refusal.module + "/image/" + refusal.file.name, {}, code});
    }
    return problems;
}

int batchProblemCode(std::string_view code) {
    int number = 0;
    std::from_chars(code.data(), code.data() + code.size(), number);
    return -(batchCodeBase + std::abs(number));
}

int batchReasonNumber(int problemCode) {
    return problemCode < -batchCodeBase ? -problemCode - batchCodeBase : 0;
}

} // namespace zdt
