#include "kit/skinFolder.h"

#include "support/files.h"

#include <unistd.h>

#include <QStandardPaths>

#include <filesystem>
#include <system_error>

namespace zdt {

namespace {

constexpr std::string_view workspaceName = "zdtheme-designer/";

bool leadsUp(std::string_view path) {
    const std::string framed = "/" + std::string(path) + "/";
    return framed.find("/../") != std::string::npos;
}

} // namespace

SkinRoots skinRoots() {
    return {workspaceFolder(), programDirectory()};
}

std::string workspaceFolder() {
    std::error_code error;
    std::string path = std::filesystem::current_path(error).string();
    if (!path.ends_with('/'))
        path += '/';
    return path;
}

std::string chooseWorkspace(const std::string& programFolder, const std::string& dataHome) {
    if (isFolder(programFolder) && ::access(programFolder.c_str(), W_OK | X_OK) == 0)
        return programFolder;
    return dataHome + (dataHome.ends_with('/') ? "" : "/") + std::string(workspaceName);
}

bool enterWorkspace() {
    const QString dataHome = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const std::string workspace = chooseWorkspace(programDirectory(), dataHome.toStdString());
    return makePath(workspace) && ::chdir(workspace.c_str()) == 0;
}

std::string resolveSkinPath(std::string_view path, const SkinRoots& roots) {
    if (path.starts_with("./"))
        path.remove_prefix(2);
    if (!path.starts_with("skin/") || leadsUp(path))
        return {};
    std::string own = roots.workspace + std::string(path);
    return pathExists(own) ? own : roots.program + std::string(path);
}

std::string skinFile(std::string_view name, const SkinRoots& roots) {
    return resolveSkinPath(std::string(skinFolderName) + std::string(name), roots);
}

std::string writableSkinFile(std::string_view name, const SkinRoots& roots) {
    const std::string path = roots.workspace + std::string(skinFolderName) + std::string(name);
    return !leadsUp(name) && makeParent(path) ? path : std::string();
}

} // namespace zdt
