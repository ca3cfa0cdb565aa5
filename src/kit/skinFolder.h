#pragma once

#include <string>
#include <string_view>

/// Where the files of the skin and the author's own stand. Paths are absolute UTF-8, a folder's ends in "/".
namespace zdt {

/// The skin's folder below the workspace and below the program folder.
inline constexpr std::string_view skinFolderName = "skin/ZDThemeDesign/";

/// The two folders in which a file of the skin may stand.
struct SkinRoots {
    std::string workspace; ///< Looked at first; what the program writes stands here.
    std::string program;   ///< What is shipped.
};

/// The workspace and the program folder of this process.
[[nodiscard]] SkinRoots skinRoots();

/// The working directory: whatever the program writes stands below it, once `enterWorkspace` was called.
[[nodiscard]] std::string workspaceFolder();

/// Where the workspace belongs: in the program folder if that can be written, otherwise in `dataHome`, the user's
/// folder for data of programs.
[[nodiscard]] std::string chooseWorkspace(const std::string& programFolder, const std::string& dataHome);

/// Makes the workspace where it belongs and the working directory of the process. False if that can't be done.
[[nodiscard]] bool enterWorkspace();

/// The file that a path "./skin/…" or "skin/…" means: that of the workspace if something stands there, otherwise that
/// of the program folder, which needn't exist. Empty for a path that doesn't begin so or that has "..", so that no text
/// of a file leads outside.
[[nodiscard]] std::string resolveSkinPath(std::string_view path, const SkinRoots& roots = skinRoots());

/// `resolveSkinPath` of a file of the skin's folder, such as "style.qss".
[[nodiscard]] std::string skinFile(std::string_view name, const SkinRoots& roots = skinRoots());

/// Where a file of the skin's folder is written: in the workspace, whose folder for it is made. Empty if that fails, or
/// for a name that has "..".
[[nodiscard]] std::string writableSkinFile(std::string_view name, const SkinRoots& roots = skinRoots());

} // namespace zdt
