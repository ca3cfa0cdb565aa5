#include "editor/problemReasons.h"

#include "editor/batchPlan.h"
#include "editor/fileWords.h"
#include "model/returnCode.h"
#include "modules/themeNode.h"
#include "support/files.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace zdt {

namespace {

/// What the place takes, as far as there are words for it.
void addNeed(std::vector<Sentence>& reason, const FileFacts& facts) {
    const std::string kinds = kindsText(facts.kinds);
    const std::string sizes = sizesText(facts.sizes);
    const std::string need = kinds + (kinds.empty() || sizes.empty() ? "" : " ") + sizes;
    if (!need.empty())
        reason.push_back({"kProblems_takes", need});
}

std::vector<Sentence> byteReason(const FileFacts& facts) {
    if (facts.bytes > 0)
        return {{"kProblems_is_large", bytesText(facts.bytes)}, {"kProblems_at_most", bytesText(facts.maxBytes)}};
    std::vector<Sentence> reason{{"kProblems_is_empty", {}}};
    addNeed(reason, facts);
    return reason;
}

std::vector<Sentence> sizeReason(const FileFacts& facts) {
    return {{"kProblems_is_size", pixelsText(facts.size)}, {"kProblems_takes", sizesText(facts.sizes)}};
}

std::vector<Sentence> unreadableReason(const FileFacts& facts) {
    const bool isAnother = facts.content != fileKind::other && (facts.content & facts.kinds) == 0;
    if (!isAnother)
        return {{"kProblems_unreadable", {}}};
    std::vector<Sentence> reason{{"kProblems_really", kindsText(facts.content)}};
    addNeed(reason, facts);
    return reason;
}

std::vector<Sentence> missingReason(const FileFacts& facts) {
    const bool isPicture = (facts.kinds & (fileKind::png | fileKind::jpeg)) != 0;
    if (!isPicture)
        return {};
    std::vector<Sentence> reason{{"kProblems_missing_picture", {}}};
    addNeed(reason, facts);
    return reason;
}

/// Problems of the lock screen's design, which are told by their file alone.
std::vector<Sentence> designReason(const Problem& problem) {
    const bool isLayout = problem.path.ends_with(".xml");
    if (problem.code == returnCode::damagedFile)
        return {{"kProblems_damaged_layout", {}}};
    if (problem.code == incompleteMusic)
        return {{"kProblems_missing_music", {}}};
    return {{isLayout ? "kProblems_missing_layout" : "kProblems_missing_design_picture", {}}};
}

std::vector<Sentence> versionReason(const ThemeResource& theme) {
    constexpr std::array<std::string_view, generationCount> names{"OVUI 5.0", "OVUI 8.0", "OVUI 9.1"};
    if (theme.version() >= names.size())
        return {};
    return {{"kProblems_version_is", theme.getValue({}, "version")},
            {"kProblems_theme_is", std::string(names[theme.version()])}};
}

std::vector<Sentence> knownReason(const ThemeResource& theme, const Problem& problem, const ResNode* node) {
    if (node == &theme.amazingNode())
        return designReason(problem);
    if (problem.code == returnCode::damagedFile)
        return {{"kProblems_damaged", {}}};
    if (problem.code == returnCode::foreignVersion)
        return versionReason(theme);
    if (problem.key == "unlock/custom/file")
        return {{"kProblems_missing_package", {}}};
    const auto* file = dynamic_cast<const FileResNode*>(node);
    return file ? fileReason(problem.code, factsOf(*file, theme.tree().path() + problem.path))
                : std::vector<Sentence>();
}

} // namespace

FileFacts factsOf(const FileResNode& place, const std::string& file) {
    FileFacts facts{place.sizeRanges(), place.maxBytes(), place.allowedKinds(), fileSize(file), {}, fileKind::other};
    const PictureSize png = pngSize(file);
    const PictureSize jpeg = jpegSize(file);
    if (png != PictureSize())
        facts.content = fileKind::png;
    else if (jpeg != PictureSize())
        facts.content = fileKind::jpeg;
    facts.size = facts.content == fileKind::png ? png : jpeg;
    return facts;
}

std::vector<Sentence> fileReason(int code, const FileFacts& facts) {
    switch (code) {
    case returnCode::missingFile:
        return missingReason(facts);
    case returnCode::wrongByteSize:
        return byteReason(facts);
    case returnCode::wrongDimensions:
        return sizeReason(facts);
    case returnCode::unreadablePicture:
        return unreadableReason(facts);
    default: // codes are numbers, and the others have texts of their own
        return {};
    }
}

std::vector<Sentence> reasonOf(const ThemeResource* theme, const Problem& problem) {
    if (const int number = batchReasonNumber(problem.code))
        return {{"kBatch_reason_" + std::to_string(number), {}}};
    std::vector<Sentence> reason;
    if (theme)
        reason = knownReason(*theme, problem, nodeOf(*theme, problem));
    if (reason.empty())
        reason.push_back({"kProblem_" + std::to_string(std::abs(problem.code)), {}});
    return reason;
}

} // namespace zdt
