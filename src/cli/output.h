#pragma once

#include "store/themeResource.h"

#include <nlohmann/json.hpp>

#include <iosfwd>
#include <stdexcept>
#include <string>
#include <vector>

namespace zdt {

/// Keeps the order in which the fields of a result are described.
using Json = nlohmann::ordered_json;

/// A command that is refused: it ends with one line `what: why` and the exit status 1.
class Refusal : public std::runtime_error {
public:
    Refusal(const std::string& what, const std::string& why)
        : std::runtime_error(what + ": " + why) {}
    /// Told by a return code, which is named too.
    Refusal(const std::string& what, int code);
};

/// What every command is given.
struct Context {
    std::string root = "./"; ///< The store root.
    bool json = false;       ///< The result as one JSON document.
    std::ostream& out;
    std::ostream& err;
    mutable bool midLine = false; ///< A progress stands on an unfinished line of `err`.

    /// Prints a result: the document, or else the lines. A line break inside a line shows as "\n".
    void print(const Json& document, const std::vector<std::string>& lines) const;
    /// Prints a result that is one text.
    void print(const std::string& text) const;
    /// Shows how far a long command is on standard error, if that is a terminal; empty otherwise.
    [[nodiscard]] Progress progress(const std::string& label) const;
};

/// A text from outside as part of one line that a terminal can show: cut where it is very long, with "?" for control
/// characters and for bytes that are no UTF-8.
[[nodiscard]] std::string oneLine(std::string text);

/// Prints problems, each with its words, and tells whether there are any.
bool printProblems(const Context& context, const std::vector<Problem>& problems);

} // namespace zdt
