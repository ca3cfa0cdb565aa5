#include "support/pattern.h"

#include <re2/re2.h>

#include <memory>
#include <mutex>
#include <unordered_map>

namespace zdt {

const Pattern& Pattern::of(const std::string& expression) {
    static std::mutex mutex;
    static std::unordered_map<std::string, std::unique_ptr<const Pattern>> known;
    const std::lock_guard lock(mutex);
    std::unique_ptr<const Pattern>& entry = known[expression];
    if (!entry)
        entry.reset(new Pattern(expression));
    return *entry;
}

Pattern::Pattern(const std::string& expression) {
    RE2::Options options(RE2::Latin1);
    options.set_log_errors(false);
    _compiled = std::make_unique<const RE2>(expression, options);
}

Pattern::~Pattern() = default;

const std::string& Pattern::expression() const {
    return _compiled->pattern();
}

bool Pattern::matches(std::string_view text) const {
    return RE2::FullMatch(re2::StringPiece(text.data(), text.size()), *_compiled);
}

bool Pattern::matches(std::string_view text, std::vector<std::string>& groups) const {
    groups.clear();
    if (!_compiled->ok())
        return false;
    std::vector<re2::StringPiece> pieces(static_cast<std::size_t>(_compiled->NumberOfCapturingGroups()) + 1);
    const re2::StringPiece piece(text.data(), text.size());
    if (!_compiled->Match(piece, 0, text.size(), RE2::ANCHOR_BOTH, pieces.data(), static_cast<int>(pieces.size())))
        return false;
    for (std::size_t index = 1; index < pieces.size(); ++index)
        groups.emplace_back(pieces[index].data() ? pieces[index].as_string() : std::string());
    return true;
}

bool matchesPattern(std::string_view text, const std::string& expression) {
    return Pattern::of(expression).matches(text);
}

bool matchesPattern(std::string_view text, const std::string& expression, std::vector<std::string>& groups) {
    return Pattern::of(expression).matches(text, groups);
}

std::string escapePattern(std::string_view text) {
    return RE2::QuoteMeta(re2::StringPiece(text.data(), text.size()));
}

} // namespace zdt
