#include "shell/skinCheck.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace zdt {

namespace {

constexpr std::array<const char*, 11> skinFiles{"skin.xml",    "start.xml",   "about.xml",    "newTheme.xml",
                                                "export.xml",  "problems.xml", "fullList.xml", "style.qss",
                                                "English.ini", "Chinese.ini", "Key.ini"};

bool stands(const QString& path) {
    const QFileInfo file(path);
    return file.isFile() && file.isReadable() && file.size() > 0;
}

} // namespace

QStringList missingSkinFiles(const QStringList& folders) {
    QStringList missing;
    for (const char* name : skinFiles) {
        const bool found = std::any_of(folders.begin(), folders.end(),
                                       [&](const QString& folder) { return stands(QDir(folder).filePath(name)); });
        if (!found)
            missing += name;
    }
    return missing;
}

} // namespace zdt
