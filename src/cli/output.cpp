#include "cli/output.h"

#include "cli/words.h"
#include "support/text.h"

#include <unistd.h>

#include <cmath>
#include <ostream>

namespace zdt {

namespace {

/// A line that stays one, and that leaves the terminal as it is.
std::string escaped(const std::string& line) {
    std::string text;
    for (const char c : line) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\n')
            text += "\\n";
        else
            text += (byte < ' ' && c != '\t') || byte == 0x7f ? '?' : c;
    }
    return text;
}

} // namespace

std::string oneLine(std::string text) {
    constexpr std::size_t longest = 2000;
    if (text.size() > longest)
        text.resize(longest);
    const bool isText = isUtf8(text);
    for (char& c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\n')
            c = ' ';
        else if (byte < 0x20 || byte == 0x7f || (byte >= 0x80 && !isText))
            c = '?';
    }
    return text;
}

Refusal::Refusal(const std::string& what, int code)
    : std::runtime_error(what + ": " + wordsFor(code) + " (" + std::to_string(code) + ")") {}

void Context::print(const Json& document, const std::vector<std::string>& lines) const {
    if (json) {
        // What a theme brings along may be no UTF-8, and then shows as such.
        out << document.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
        return;
    }
    for (const std::string& line : lines)
        out << escaped(line) << '\n';
}

void Context::print(const std::string& text) const {
    if (json)
        print(Json(text), {});
    else
        out << text << '\n';
}

Progress Context::progress(const std::string& label) const {
    if (::isatty(STDERR_FILENO) == 0)
        return {};
    return [this, label, shown = -1](double done) mutable {
        const int percent = static_cast<int>(std::lround(done * 100));
        if (percent == shown)
            return;
        shown = percent;
        midLine = percent != 100;
        err << '\r' << label << ' ' << percent << " %" << (midLine ? "" : "\n") << std::flush;
    };
}

bool printProblems(const Context& context, const std::vector<Problem>& problems) {
    Json list = Json::array();
    std::vector<std::string> lines;
    for (const Problem& problem : problems) {
        const std::string reason = wordsFor(problem);
        list.push_back({{"key", problem.key}, {"path", problem.path}, {"code", problem.code}, {"reason", reason}});
        const std::string file = problem.path.empty() ? std::string() : " [" + problem.path + "]";
        lines.push_back((problem.key.empty() ? "description" : problem.key) + ": " + reason + " (" +
                        std::to_string(problem.code) + ")" + file);
    }
    context.print(list, lines);
    return !problems.empty();
}

} // namespace zdt
