#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What the window does with packages that an author drops or chooses, told before anything is unpacked.
namespace zdt {

struct ImportPlan {
    enum class Step { refuse, ask, import };

    Step step = Step::refuse;
    std::string_view messageKey; ///< Of the refusal or the question; empty for an import.
    std::string name;            ///< The theme that the package becomes.
};

/// @param themes the names of the themes that are there
[[nodiscard]] ImportPlan planImport(const std::string& package, const std::vector<std::string>& themes);

/// The message for the end of an import.
[[nodiscard]] std::string_view importResultKey(bool succeeded);

/// The packages among what was dropped: plain files that end in ".zdt", whatever the case, each once.
[[nodiscard]] std::vector<std::string> packagesAmong(const std::vector<std::string>& paths);

} // namespace zdt
