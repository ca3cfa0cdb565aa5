#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <string_view>

/// The words of the window. A text is found by its key in the file of the current language, and a name of the theme's,
/// such as that of a picture, leads to the keys that describe it. Texts are `QString`, since it is widgets that show
/// them. Both tables belong to the process and to the interface thread.
namespace zdt {

inline constexpr int chineseLanguage = 0;
inline constexpr int englishLanguage = 1;

using TextTable = QHash<QString, QString>;
using KeyTable = QHash<QString, QStringList>;

/// Reads a language file: lines `key=value` in UTF-8, of which the first of a key counts. A line is trimmed at both
/// ends; it is skipped if it then begins with "#", or is a section, which is any line with "[" and a later "]", or has
/// no
/// "=". Bytes that are no UTF-8 become U+FFFD, and a byte order mark in front is dropped.
[[nodiscard]] TextTable parseTexts(std::string_view text);

/// Reads `Key.ini`: the same, but a line with "#" anywhere is skipped, and each line of a name adds its key.
[[nodiscard]] KeyTable parseKeys(std::string_view text);

/// Fills the table of texts from the file of the current language. Without such a file, or with one above 1 MiB, it is
/// empty and every text blank.
void LoadLanguage();

/// Fills the table of names from `Key.ini`, in the same way. It doesn't depend on the language.
void LoadKeys();

/// `chineseLanguage` or `englishLanguage`; the first until it is set.
[[nodiscard]] int GetLanguage();

/// Sets the language and loads its texts. An index that names no language changes nothing.
void SetLanguage(int index);

/// The text of a key; empty for a key that isn't in the table.
[[nodiscard]] QString Text(const QString& key);

/// The text of the first of a name's keys that the language has; empty if there is none.
[[nodiscard]] QString KeyedText(const QString& name);

/// The first key of a name, or nothing.
[[nodiscard]] QString FirstKey(const QString& name);

/// The text of a key with the number in the place of its first "%d", or behind it if it has none. A text comes from a
/// file, so none is ever a format for printf.
[[nodiscard]] QString TextWith(const QString& key, int number);

/// The same with a word in the place of "%s".
[[nodiscard]] QString TextWith(const QString& key, const QString& word);

} // namespace zdt
