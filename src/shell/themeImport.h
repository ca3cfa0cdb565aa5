#pragma once

#include "kit/workbench.h"

#include <QStringList>

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace zdt {

/// The packages and folders of themes among what was dropped: files that end in ".zdt", and folders with a description
/// in them. Each once; links are followed.
[[nodiscard]] std::vector<std::string> importableAmong(const QStringList& paths);

/// Makes packages and folders of themes the author's own, asks before one is replaced, shows the progress and says how
/// it went. Of several, one question and one result stand for all. Importing over the open theme closes that.
/// @param sources of `importableAmong`
/// @param leaveTheme is called before the open theme is closed, for whoever shows it
/// @return the names of the themes that were imported
std::vector<std::string> importThemes(Workbench& bench, QWidget* window, const std::vector<std::string>& sources,
                                      const std::function<void()>& leaveTheme);

} // namespace zdt
