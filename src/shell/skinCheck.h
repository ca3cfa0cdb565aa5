#pragma once

#include <QStringList>

namespace zdt {

/// The files of the skin that no folder has whole: missing ones, empty ones, and those of style and texts that lack the
/// mark at their end. Without one the program runs, but not as it should.
[[nodiscard]] QStringList missingSkinFiles(const QStringList& folders);

} // namespace zdt
