#pragma once

#include "store/themeResource.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// What the problem list says of each problem, told without a widget.
namespace zdt {

class ResNode;

enum class ProblemSubject { pictures, colours, texts, files, layout };
inline constexpr std::size_t problemSubjectCount = 5;

/// How a problem can be mended without the author: what is put back.
enum class ProblemRestore {
    none,
    file,        ///< The template's file.
    value,       ///< The default of a text or colour.
    lockPicture, ///< The template's picture of that name, in the design of the lock screen.
    block,       ///< A file of values that can't be read is kept aside and written anew.
    description, ///< The same with the description.
    lockKind,    ///< The same with the file that tells the kind of lock screen.
    lockLayout,  ///< A design is started where there is none.
    lockDesign,  ///< The same, in place of one that can't be read: to be asked for.
    version,     ///< The version of the theme's own generation.
};

/// A text by its key, and the word in its place; empty for a text that has none.
struct Sentence {
    std::string key;
    std::string word;

    bool operator==(const Sentence&) const = default;
};

struct ProblemRow {
    Problem problem;
    ProblemSubject subject = ProblemSubject::files;
    std::string group;            ///< The module under which it stands, as `groupOf` gives it.
    std::vector<Sentence> reason; ///< What is wrong, then what is needed.
    std::string detail;           ///< The name of the file or key.
    std::string picture;          ///< The path of the picture; empty where there is none to show.
    std::string colour;           ///< Of a colour's problem, its value.
    ProblemRestore restore = ProblemRestore::none;
};

/// The rows of a list of problems, group by group in the order of the navigation, and in the list's own order within.
/// Keys that the theme doesn't have make rows too, that say what the code alone tells. `theme` may be null.
[[nodiscard]] std::vector<ProblemRow> problemRows(const ThemeResource* theme, const std::vector<Problem>& problems);

/// How many problems each group has.
[[nodiscard]] std::map<std::string, int> countByGroup(const std::vector<ProblemRow>& rows);

/// The node of a problem's key; null if the theme has none, and for the description.
[[nodiscard]] ResNode* nodeOf(const ThemeResource& theme, const Problem& problem);

} // namespace zdt
