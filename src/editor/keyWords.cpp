#include "editor/keyWords.h"

#include "kit/localisation.h"
#include "model/returnCode.h"

#include <cstdlib>

namespace zdt {

namespace {

constexpr std::uint64_t kilobyte = 1024;
constexpr std::uint64_t megabyte = kilobyte * kilobyte;

QString shown(const std::string& text) {
    return QString::fromStdString(text);
}

void addOnce(QStringList& words, const QString& word) {
    if (!word.isEmpty() && !words.contains(word))
        words.append(word);
}

/// The words for the parts of a shared setting's path.
QStringList itemWords(const std::string& item) {
    QStringList words;
    for (const QString& part : shown(item).split('/'))
        words.append(KeyedText(part));
    while (words.size() < 3)
        words.append(QString());
    return words;
}

QString rangeWords(std::uint32_t least, std::uint32_t end) {
    return end == least + 1 ? QString::number(least) : QString("%1–%2").arg(least).arg(end - 1);
}

} // namespace

KeyWords wordsOf(const KeyRow& row) {
    KeyWords words;
    words.name = shown(row.name());
    words.module = moduleWord(row.module);
    QStringList meanings;
    QStringList screens;
    QStringList places;
    addOnce(meanings, KeyedText(words.name));
    for (const std::string& item : row.items) {
        const QStringList parts = itemWords(item);
        addOnce(screens, parts[1]);
        addOnce(meanings, parts[2]);
        addOnce(places, parts[0] + " › " + parts[1]);
    }
    const QString separator = listSeparator();
    words.meaning = meanings.join(separator);
    words.appliesTo = screens.isEmpty() ? words.module : screens.join(separator);
    words.places = places.isEmpty() ? words.module : places.join("\n");
    words.searched = QStringList{words.name, words.module, words.meaning, words.places}.join('\n').toLower();
    return words;
}

QString moduleWord(const std::string& module) {
    const QString word = KeyedText(shown(module));
    return word.isEmpty() ? shown(module) : word;
}

QString listSeparator() {
    return GetLanguage() == chineseLanguage ? QString(QChar(0x3001)) : QString(", ");
}

QString bytesWords(std::uint64_t bytes) {
    if (bytes >= megabyte) {
        const QString number = QString::number(static_cast<double>(bytes) / static_cast<double>(megabyte), 'f', 1);
        return (number.endsWith(".0") ? number.chopped(2) : number) + " MB";
    }
    if (bytes >= kilobyte)
        return QString::number((bytes + kilobyte / 2) / kilobyte) + " KB";
    return TextWith("kList_bytes", static_cast<int>(bytes));
}

QString kindWords(const KeyRow& row) {
    QStringList kinds;
    if (row.kind == KeyKind::video)
        kinds.append("MP4");
    if ((row.kinds & fileKind::png) != 0)
        kinds.append("PNG");
    if ((row.kinds & fileKind::jpeg) != 0)
        kinds.append("JPG");
    return kinds.join(listSeparator());
}

QString sizeWords(const KeyRow& row) {
    QStringList sizes;
    for (const SizeRange& size : row.sizes)
        sizes.append(rangeWords(size.minWidth, size.widthLimit) + " × " + rangeWords(size.minHeight, size.heightLimit));
    return sizes.join(listSeparator());
}

QString allowedWords(const KeyRow& row) {
    QStringList allowed;
    addOnce(allowed, kindWords(row));
    addOnce(allowed, sizeWords(row));
    if (row.maxBytes > 0)
        addOnce(allowed, TextWith("kList_at_most", bytesWords(row.maxBytes)));
    return allowed.join(listSeparator());
}

QString reasonWords(int code) {
    const QString words = Text("kProblem_" + QString::number(std::abs(code)));
    return words.isEmpty() ? Text("kProblem_" + QString::number(-returnCode::copyFailed)) : words;
}

} // namespace zdt
