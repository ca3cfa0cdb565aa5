#pragma once

#include "editor/pictureEntry.h"
#include "model/pictureSize.h"
#include "store/themeResource.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What becomes of each file of a batch, told without a widget and without a theme.
namespace zdt {

/// The numbers are those by which a batch tells its files.
enum class BatchState {
    fine = 0,
    tooLarge = 1,
    doubled = 2,
    toolFailed = 3, ///< The tool for nine-patches is missing, or was too slow.
    compileRefused = 4,
    wrongSize = 5,
    wrongPatchKind = 6, ///< A nine-patch for a plain row, or the reverse.
    nameNotAllowed = 7,
    otherTheme = 8, ///< A picture of another generation: not worth a word.
    wrongType = 9,
    unreadable = 10, ///< Or not copied.
};

/// "-16" and the like, as a list of refusals names a state; empty for those that it doesn't name.
[[nodiscard]] std::string_view codeTextOf(BatchState state);

/// The code of a file that no row claimed.
inline constexpr std::string_view unclaimedCode = "-1";

/// What the store's code means for a batch.
[[nodiscard]] BatchState stateOfCode(int code);

/// Files that one worker compiles.
inline constexpr std::size_t filesPerRun = 5;

/// How many runs that many files make; one for none.
[[nodiscard]] std::size_t workerCount(std::size_t files);

/// More files than any author means to give.
inline constexpr std::size_t maxBatchFiles = 10'000;

/// A file of a batch.
struct BatchFile {
    std::string path; ///< As it was given.
    std::string name; ///< Of the file.
    std::string file; ///< What is stored: `path`, or what was compiled of it.
    std::string key;  ///< Of the row that has its name; empty where none has.
    BatchState state = BatchState::fine;
    std::string reason; ///< In the tool's own words.
    QString sizeHint;   ///< Of the row.
    PictureSize size;   ///< Of the picture; 0 x 0 if it wasn't read.

    [[nodiscard]] bool isClaimed() const { return !key.empty(); }
    /// Whether it may still be stored.
    [[nodiscard]] bool isFit() const { return isClaimed() && state == BatchState::fine; }
};

/// The files that were given, with those of folders in the place of the folder: of these alone the pictures, in the
/// order of their names.
[[nodiscard]] std::vector<std::string> expandFiles(const std::vector<std::string>& given);

/// Leaves as many files as a batch takes, and gives how many are too many.
[[nodiscard]] std::size_t cutToBatch(std::vector<std::string>& files);

/// Finds each file's row by its name, upper and lower case being the same, and tests what can be tested before it is
/// compiled. Reads the files' sizes and headers, and may be called on any thread.
[[nodiscard]] std::vector<BatchFile> planBatch(const std::vector<std::string>& files, std::string_view module,
                                               const std::vector<PictureGroup>& groups);

struct BatchMatch {
    std::string key;
    std::string path;      ///< What the author gave.
    bool replaced = false; ///< Whether there was an own picture before.
};

struct BatchRefusal {
    std::string module;
    BatchFile file;

    /// Its code in the list, that of a file which no row claimed too.
    [[nodiscard]] std::string_view code() const;
    /// As "contacts/-22 btn_call_end.png".
    [[nodiscard]] std::string line() const;
};

struct BatchResult {
    std::vector<BatchMatch> matched;
    std::vector<BatchRefusal> refused;
    int typeMismatches = 0;
    std::size_t leftOut = 0; ///< Files beyond what a batch takes, which weren't looked at.
    bool cancelled = false;  ///< What wasn't looked at then stands in neither list.

    [[nodiscard]] std::size_t readCount() const { return matched.size() + refused.size(); }
};

/// The refusals that a finished plan gives.
[[nodiscard]] std::vector<BatchRefusal> refusalsOf(std::string_view module, const std::vector<BatchFile>& files);

/// The refusals as the list of problems takes them.
[[nodiscard]] std::vector<Problem> problemsOf(const BatchResult& result, const std::vector<PictureGroup>& groups);

/// A batch's code as a problem's, which no code of the store equals.
[[nodiscard]] int batchProblemCode(std::string_view code);
/// Back to the number of the text `kBatch_reason_<number>`; 0 for a code that is no batch's.
[[nodiscard]] int batchReasonNumber(int problemCode);

} // namespace zdt
