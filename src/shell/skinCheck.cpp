#include "shell/skinCheck.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace zdt {

namespace {

constexpr std::array skinFiles{
    "skin.xml",     "start.xml",    "about.xml",      "newTheme.xml",    "export.xml",
    "problems.xml", "fullList.xml", "simplePage.xml", "batchUpload.xml", "res_edit_unlock_change_positionframe.xml",
    "style.qss",    "English.ini",  "Chinese.ini",    "Key.ini",
};

/// The folder of what stands on the phone's screens.
constexpr const char* screenPictures = "simplepic";

/// What a file that nothing else can tell to be whole ends with; a layout is told when it is read.
QByteArray endMark(const QString& path) {
    return path.endsWith(".qss") ? "/* end */" : path.endsWith(".ini") ? "# end" : "";
}

bool isWhole(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.size() == 0)
        return false;
    constexpr qint64 tail = 64;
    file.seek(std::max<qint64>(0, file.size() - tail));
    return file.readAll().trimmed().endsWith(endMark(path));
}

} // namespace

QStringList missingSkinFiles(const QStringList& folders) {
    QStringList missing;
    const bool hasScreens = std::any_of(folders.begin(), folders.end(), [](const QString& folder) {
        return QDir(QDir(folder).filePath(screenPictures)).exists();
    });
    if (!hasScreens)
        missing += screenPictures;
    for (const char* name : skinFiles) {
        const bool found = std::any_of(folders.begin(), folders.end(),
                                       [&](const QString& folder) { return isWhole(QDir(folder).filePath(name)); });
        if (!found)
            missing += name;
    }
    return missing;
}

} // namespace zdt
