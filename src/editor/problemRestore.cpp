#include "editor/problemRestore.h"

#include "editor/keyDefaults.h"
#include "lockscreen/amazingUnlockNode.h"
#include "lockscreen/unlockConfigNode.h"
#include "lockscreen/unlockNode.h"
#include "model/configResNode.h"
#include "model/fileResNode.h"
#include "model/returnCode.h"
#include "model/template.h"
#include "model/textResNode.h"
#include "modules/themeNode.h"
#include "support/files.h"

namespace zdt {

namespace {

const KeyPath lockDesignKey{"unlock", "amazing"};

/// The template's file for a place in the theme; empty if it has none.
std::string templateFileFor(const ThemeResource& theme, const std::string& path) {
    const std::string templatePath = locateTemplate(storeRootOf(theme.tree().path()), theme.version());
    const std::string file = templatePath.empty() ? std::string() : templateFile(templatePath, path);
    return isPlainFile(file) ? file : std::string();
}

ProblemRestore ofDesign(const ThemeResource& theme, const Problem& problem) {
    if (problem.code == returnCode::damagedFile)
        return ProblemRestore::lockDesign;
    if (!theme.amazingNode().isReadable())
        return ProblemRestore::lockLayout;
    const std::string file = templateFileFor(theme, problem.path);
    const bool fits = !file.empty() &&
                      theme.tree().path() + problem.path == theme.amazingNode().pictureFile(fileName(problem.path)) &&
                      theme.amazingNode().checkReplacement(fileName(problem.path), file) == returnCode::success;
    return fits ? ProblemRestore::lockPicture : ProblemRestore::none;
}

ProblemRestore ofDamagedFile(const ResNode& node) {
    if (dynamic_cast<const UnlockNode*>(&node))
        return ProblemRestore::lockKind;
    return dynamic_cast<const ConfigResNode*>(&node) ? ProblemRestore::block : ProblemRestore::none;
}

int codeOf(bool written) {
    return written ? returnCode::success : returnCode::copyFailed;
}

/// The version it tells becomes that of the theme's generation.
bool writeDescription(ThemeResource& theme) {
    return theme.version() < generationCount ? theme.changeGeneration(theme.version()) : theme.applyNode({});
}

int startDesign(ThemeResource& theme) {
    theme.startLockDesign();
    return codeOf(theme.applyNode(lockDesignKey));
}

int restoreValue(ThemeResource& theme, const ResNode& node) {
    KeyPath block = node.keyPath();
    block.pop_back();
    const std::string name = node.name();
    const std::string before = node.value();
    if (const int code = theme.setValue(block, name, defaultTextOf(theme, node)))
        return code;
    if (theme.applyNode(block))
        return returnCode::success;
    static_cast<void>(theme.setValue(block, name, before));
    return returnCode::copyFailed;
}

} // namespace

ProblemRestore restoringOf(const ThemeResource& theme, const Problem& problem) {
    if (problem.key.empty())
        return problem.code == returnCode::damagedFile ? ProblemRestore::description : ProblemRestore::none;
    const ResNode* node = nodeOf(theme, problem);
    if (!node)
        return ProblemRestore::none;
    if (node == &theme.amazingNode())
        return ofDesign(theme, problem);
    if (problem.code == returnCode::damagedFile)
        return ofDamagedFile(*node);
    if (problem.code == returnCode::foreignVersion)
        return ProblemRestore::version;
    if (dynamic_cast<const FileResNode*>(node))
        return templateFileFor(theme, node->path() + node->name()).empty() ? ProblemRestore::none
                                                                           : ProblemRestore::file;
    const bool hasDefault = dynamic_cast<const TextResNode*>(node) && !defaultTextOf(theme, *node).empty();
    return hasDefault ? ProblemRestore::value : ProblemRestore::none;
}

int restoreProblem(ThemeResource& theme, const Problem& problem) {
    ResNode* node = nodeOf(theme, problem);
    switch (restoringOf(theme, problem)) {
    case ProblemRestore::none:
        return returnCode::cannotRemove;
    case ProblemRestore::file:
        return theme.restoreDefault(node);
    case ProblemRestore::value:
        return restoreValue(theme, *node);
    case ProblemRestore::lockPicture:
        return theme.replaceLockPicture(fileName(problem.path), templateFileFor(theme, problem.path));
    case ProblemRestore::block:
        return codeOf(theme.applyNode(node->keyPath()));
    case ProblemRestore::description:
    case ProblemRestore::version:
        return codeOf(writeDescription(theme));
    case ProblemRestore::lockKind:
        return theme.setLockScreenType(unlockType::amazing);
    case ProblemRestore::lockLayout:
    case ProblemRestore::lockDesign:
        return startDesign(theme);
    }
    return returnCode::cannotRemove;
}

} // namespace zdt
