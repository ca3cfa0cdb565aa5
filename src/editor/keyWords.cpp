#include "editor/keyWords.h"

#include "editor/fileWords.h"
#include "editor/moduleWords.h"
#include "kit/localisation.h"

namespace zdt {

namespace {

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

QString nothingCalled(const QString& searched) {
    constexpr int shownLength = 24;
    const QString text = searched.trimmed();
    return TextWith("kList_nothing_called", text.size() > shownLength ? text.left(shownLength) + QChar(0x2026) : text);
}

QString listSeparator() {
    return GetLanguage() == chineseLanguage ? QString(QChar(0x3001)) : QString(", ");
}

QString bytesWords(std::uint64_t bytes) {
    return shown(bytesText(bytes));
}

QString kindWords(const KeyRow& row) {
    return row.kind == KeyKind::video ? QString("MP4") : shown(kindsText(row.kinds));
}

QString sizeWords(const KeyRow& row) {
    return shown(sizesText(row.sizes));
}

QString allowedWords(const KeyRow& row) {
    QStringList allowed;
    addOnce(allowed, kindWords(row));
    addOnce(allowed, sizeWords(row));
    if (row.maxBytes > 0)
        addOnce(allowed, TextWith("kList_at_most", bytesWords(row.maxBytes)));
    return allowed.join(listSeparator());
}

} // namespace zdt
