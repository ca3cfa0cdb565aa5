#pragma once

#include "editor/keyRows.h"

#include <QString>
#include <QStringList>

#include <string>
#include <string_view>

namespace zdt {

/// What is said of a row of the full list, in the language of the moment.
struct KeyWords {
    QString name;      ///< As it is written in the theme.
    QString module;    ///< The module's word.
    QString meaning;   ///< Empty where nobody gave one.
    QString appliesTo; ///< The screens that the shared settings have for it, else the module's word.
    QString places;    ///< The same with its modules, longer.
    QString searched;  ///< All that a search looks at but the value, in lower case.
};

[[nodiscard]] KeyWords wordsOf(const KeyRow& row);

/// That a search found nothing.
[[nodiscard]] QString nothingCalled(const QString& searched);

/// What stands between the parts of a list.
[[nodiscard]] QString listSeparator();

/// A number of bytes for the eye: "312 B", "48 KB", "1.2 MB".
[[nodiscard]] QString bytesWords(std::uint64_t bytes);

/// The file kinds of a row, as "PNG / JPG"; empty for one that takes any.
[[nodiscard]] QString kindWords(const KeyRow& row);

/// The pixel sizes of a row, as "192 × 192" or a range; empty where any is taken.
[[nodiscard]] QString sizeWords(const KeyRow& row);

/// The kinds, sizes and bytes that a file's place takes, in one line.
[[nodiscard]] QString allowedWords(const KeyRow& row);

} // namespace zdt
