#include "editor/batchWords.h"

#include "editor/moduleWords.h"
#include "kit/localisation.h"

#include <QStringList>

namespace zdt {

namespace {

QString wrongSizeWords(const BatchFile& file) {
    const QString found = QString("%1*%2").arg(file.size.width).arg(file.size.height);
    return Text("kBatch_size").arg(found, file.sizeHint);
}

QString wrongKindWords(const BatchFile& file) {
    const bool isPatchWanted = file.key.ends_with(".9.png");
    return Text(isPatchWanted ? "kBatch_patch_wanted" : "kBatch_plain_wanted");
}

QString wordsOf(const char* key) {
    return Text(QString::fromUtf8(key));
}

} // namespace

QString refusalWords(const BatchRefusal& refusal) {
    const BatchFile& file = refusal.file;
    switch (file.state) {
    case BatchState::fine:
    case BatchState::otherTheme:
        return TextWith("kBatch_unclaimed", moduleWord(refusal.module));
    case BatchState::tooLarge:
        return wordsOf("kBatch_too_large");
    case BatchState::doubled:
        return wordsOf("kBatch_doubled");
    case BatchState::toolFailed:
        return wordsOf("kBatch_tool_failed");
    case BatchState::compileRefused:
        return file.reason.empty() ? wordsOf("kBatch_not_compiled") : QString::fromStdString(file.reason);
    case BatchState::wrongSize:
        return file.sizeHint.isEmpty() || file.size.width == 0 ? wordsOf("kBatch_wrong_size") : wrongSizeWords(file);
    case BatchState::wrongPatchKind:
        return wrongKindWords(file);
    case BatchState::nameNotAllowed:
        return wordsOf("kBatch_bad_name");
    case BatchState::wrongType:
        return wordsOf("kBatch_wrong_type");
    case BatchState::unreadable:
        return wordsOf("kBatch_unreadable");
    }
    return {};
}

QString refusalReason(const BatchRefusal& refusal) {
    const int number = batchReasonNumber(batchProblemCode(refusal.code()));
    return Text("kBatch_reason_" + QString::number(number));
}

QString situationText(const BatchResult& result) {
    QString text = TextWith("kIcon_Simple_BatchUpload_Situation", static_cast<int>(result.matched.size()));
    if (!result.refused.empty())
        text += TextWith("kIcon_Simple_BatchUpload_Situation_suc", static_cast<int>(result.refused.size()));
    if (result.leftOut > 0)
        text += TextWith("kBatch_left_out", static_cast<int>(result.leftOut));
    return text;
}

QString refusalList(const BatchResult& result) {
    QStringList lines;
    for (const BatchRefusal& refusal : result.refused)
        lines += QString::fromStdString(refusal.line()) + "\t" + refusalWords(refusal);
    return lines.join("\n") + "\n";
}

} // namespace zdt
