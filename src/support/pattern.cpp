#include "support/pattern.h"

#include <re2/re2.h>

#include <memory>
#include <mutex>
#include <unordered_map>

namespace zdt {

namespace {

/// Compiling takes a hundred times as long as a match, and a theme is opened with over a thousand matches.
const RE2& compiled(const std::string& expression) {
    static std::mutex mutex;
    static std::unordered_map<std::string, std::unique_ptr<const RE2>> cache;
    const std::lock_guard lock(mutex);
    std::unique_ptr<const RE2>& entry = cache[expression];
    if (!entry) {
        RE2::Options options(RE2::Latin1);
        options.set_log_errors(false);
        entry = std::make_unique<const RE2>(expression, options);
    }
    return *entry;
}

} // namespace

bool matchesPattern(std::string_view text, const std::string& expression) {
    return RE2::FullMatch(re2::StringPiece(text.data(), text.size()), compiled(expression));
}

bool matchesPattern(std::string_view text, const std::string& expression, std::vector<std::string>& groups) {
    groups.clear();
    const RE2& pattern = compiled(expression);
    if (!pattern.ok())
        return false;
    std::vector<re2::StringPiece> pieces(static_cast<std::size_t>(pattern.NumberOfCapturingGroups()) + 1);
    const re2::StringPiece piece(text.data(), text.size());
    if (!pattern.Match(piece, 0, text.size(), RE2::ANCHOR_BOTH, pieces.data(), static_cast<int>(pieces.size())))
        return false;
    for (std::size_t index = 1; index < pieces.size(); ++index)
        groups.emplace_back(pieces[index].data() ? pieces[index].as_string() : std::string());
    return true;
}

std::string escapePattern(std::string_view text) {
    return RE2::QuoteMeta(re2::StringPiece(text.data(), text.size()));
}

} // namespace zdt
