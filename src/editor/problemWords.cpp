#include "editor/problemWords.h"

#include "kit/localisation.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace zdt {

namespace {

struct GroupIcon {
    std::string_view group;
    Icon icon;
};

constexpr std::array groupIcons{
    GroupIcon{"commonSetting", Icon::Language}, GroupIcon{"launcher", Icon::Apps},
    GroupIcon{"contacts", Icon::PersonOutline}, GroupIcon{"phone", Icon::Smartphone},
    GroupIcon{"recorder", Icon::Smartphone},    GroupIcon{"telecom", Icon::Smartphone},
    GroupIcon{"mms", Icon::ChatBubbleOutline},  GroupIcon{"systemui", Icon::Tune},
    GroupIcon{"icons", Icon::GridView},         GroupIcon{"wallpaper", Icon::Wallpaper},
    GroupIcon{"unlock", Icon::LockOutline},     GroupIcon{"preview", Icon::FilterNone},
};

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
    return TextWith(keys.place, groupText(moduleOf(row.problem)));
}

QString groupText(const std::string& group) {
    const QString name = QString::fromStdString(group);
    const QString word = name.isEmpty() ? Text("kProblems_description") : KeyedText(name);
    return word.isEmpty() ? name : word;
}

Icon groupIcon(const std::string& group) {
    const auto* found =
        std::find_if(groupIcons.begin(), groupIcons.end(), [&](const GroupIcon& each) { return each.group == group; });
    return found == groupIcons.end() ? Icon::InfoOutline : found->icon;
}

QString subjectText(ProblemSubject subject) {
    return Text(subjectKeys.at(static_cast<std::size_t>(subject)).word);
}

QString kindText(ProblemKind kind) {
    return Text(kind == ProblemKind::mustFix ? "kProblems_must_fix" : "kProblems_worth_a_look");
}

QString countText(std::size_t count) {
    if (count == 0)
        return Text("kProblems_none");
    return TextWith(count == 1 ? "kProblems_one" : "kProblems_count", static_cast<int>(count));
}

} // namespace zdt
