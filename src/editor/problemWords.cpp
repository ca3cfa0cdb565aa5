#include "editor/problemWords.h"

#include "editor/moduleWords.h"
#include "kit/localisation.h"

#include <array>

namespace zdt {

namespace {

constexpr char16_t ideographicStop = 0x3002;

struct SubjectKeys {
    const char* word;
    const char* place; ///< With the module's word in it.
};

/// By `ProblemSubject`.
constexpr std::array<SubjectKeys, problemSubjectCount> subjectKeys{{
    {"kProblems_pictures", "kProblems_in_pictures"},
    {"kProblems_colours", "kProblems_in_colours"},
    {"kProblems_texts", "kProblems_in_texts"},
    {"kProblems_files", "kProblems_in_files"},
    {"kProblems_layout", "kProblems_in_layout"},
}};

} // namespace

QString reasonText(const std::vector<Sentence>& reason) {
    const bool isChinese = GetLanguage() == chineseLanguage;
    const QString stop = isChinese ? QString(QChar(ideographicStop)) : QString(".");
    QStringList sentences;
    for (const Sentence& each : reason) {
        const QString key = QString::fromStdString(each.key);
        const QString text = each.word.empty() ? Text(key) : TextWith(key, QString::fromStdString(each.word));
        // The texts of the codes are hints elsewhere, and have none.
        sentences += text.endsWith(stop) ? text : text + stop;
    }
    return sentences.join(isChinese ? "" : " ");
}

QString placeText(const ProblemRow& row) {
    const SubjectKeys& keys = subjectKeys.at(static_cast<std::size_t>(row.subject));
    return TextWith(keys.place, moduleWord(moduleOf(row.problem.key)));
}

QString subjectText(ProblemSubject subject) {
    return Text(subjectKeys.at(static_cast<std::size_t>(subject)).word);
}

QString countText(std::size_t count) {
    if (count == 0)
        return Text("kProblems_none");
    return TextWith(count == 1 ? "kProblems_one" : "kProblems_count", static_cast<int>(count));
}

} // namespace zdt
