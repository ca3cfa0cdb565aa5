#include "lockscreen/videoUnlockNode.h"
#include "model/fileResNode.h"
#include "model/template.h"
#include "modules/themeNode.h"
#include "store/themeLayout.h"
#include "store/themeResource.h"
#include "support/assertion.h"
#include "support/files.h"

/// Reading and changing the values of an open theme.
namespace zdt {

namespace {

constexpr const char* source = "themeResource";

const KeyPath lockVideoPath{"unlock", "video", "image_set"};

template <typename Add>
void forApplicableChildren(const ResNode* block, Add add) {
    if (!block || !block->isApplicable())
        return;
    for (const ResNode* child = block->firstChild(); child; child = child->next()) {
        if (child->isApplicable())
            add(child->name(), child->value());
    }
}

/// Two leaves may stand for one file; when it changes, the other one looks again.
void refreshTwins(const ResNode& changed) {
    if (!changed.parent())
        return;
    for (ResNode* sibling = changed.parent()->findChild(changed.name()); sibling;
         sibling = changed.parent()->findChild(changed.name(), sibling)) {
        auto* file = dynamic_cast<FileResNode*>(sibling);
        if (!file || sibling == &changed || sibling->path() != changed.path())
            continue;
        file->clearValue();
        file->loadFromTheme();
    }
}

} // namespace

ResNode* ThemeResource::node(const KeyPath& keyPath) const {
    return _resTree->findByPath(keyPath);
}

ResNode* ThemeResource::findLeaf(const KeyPath& keyPath, const std::string& name) const {
    const ResNode* block = node(keyPath);
    ResNode* const first = block ? block->findChild(name) : nullptr;
    for (ResNode* namesake = first; namesake; namesake = block->findChild(name, namesake)) {
        if (namesake->isApplicable())
            return namesake;
    }
    return first;
}

ResNode* ThemeResource::findNthNode(const KeyPath& keyPath, int n) const {
    if (keyPath.empty())
        return _resTree.get();
    const ResNode* block = node({keyPath.begin(), keyPath.end() - 1});
    ResNode* namesake = n > 0 && block ? block->findChild(keyPath.back()) : nullptr;
    for (int counted = 1; namesake && counted < n; ++counted)
        namesake = block->findChild(keyPath.back(), namesake);
    return namesake;
}

void ThemeResource::noteChange() const {
    touchFolder(themeFolder(_rootDirectory, _name));
}

int ThemeResource::setLeaf(ResNode* leaf, const std::string& value) {
    if (!leaf)
        return returnCode::notFound;
    const int code = leaf->setValue(value);
    if (code == returnCode::success) {
        refreshTwins(*leaf);
        noteChange();
    }
    return code;
}

std::string ThemeResource::getValue(const KeyPath& keyPath, const std::string& name) const {
    const ResNode* found = findLeaf(keyPath, name);
    return found && found->isApplicable() ? found->value() : std::string();
}

std::string ThemeResource::getValueNth(const KeyPath& keyPath, int n) const {
    const ResNode* found = findNthNode(keyPath, n);
    return found ? found->value() : std::string();
}

int ThemeResource::setValue(const KeyPath& keyPath, const std::string& name, const std::string& value) {
    // Whatever the video's file is called, it is the only one.
    if (keyPath == lockVideoPath && (name == defaultLockVideo || findLeaf(keyPath, name)))
        return setLockVideo(value);
    return setLeaf(findLeaf(keyPath, name), value);
}

int ThemeResource::setValueNth(const KeyPath& keyPath, int n, const std::string& value) {
    return setLeaf(findNthNode(keyPath, n), value);
}

std::map<std::string, int> ThemeResource::setValues(const KeyPath& keyPath,
                                                    const std::map<std::string, std::string>& values) {
    if (!node(keyPath))
        return {{"parent key", returnCode::notFound}};
    std::map<std::string, int> codes;
    for (const auto& [name, value] : values) {
        if (ResNode* child = findLeaf(keyPath, name))
            codes[name] = setLeaf(child, value);
    }
    return codes;
}

bool ThemeResource::applyNode(const KeyPath& keyPath) {
    ResNode* block = node(keyPath);
    const bool saved = block && block->save(true);
    if (saved)
        noteChange();
    return saved;
}

std::map<std::string, std::string> ThemeResource::childValues(const KeyPath& keyPath) const {
    std::map<std::string, std::string> values;
    forApplicableChildren(node(keyPath),
                          [&](const std::string& name, const std::string& value) { values[name] = value; });
    return values;
}

void ThemeResource::childValues(const KeyPath& keyPath, const std::string& name,
                                std::map<std::string, std::string>& out) const {
    KeyPath path = keyPath;
    path.push_back(name);
    out = childValues(path);
}

std::vector<std::pair<std::string, std::string>> ThemeResource::childPairs(const KeyPath& keyPath) const {
    std::vector<std::pair<std::string, std::string>> pairs;
    forApplicableChildren(node(keyPath),
                          [&](const std::string& name, const std::string& value) { pairs.emplace_back(name, value); });
    return pairs;
}

int ThemeResource::clearFile(const KeyPath& keyPath) {
    return clearFileNth(keyPath, 1);
}

int ThemeResource::clearFileNth(const KeyPath& keyPath, int n) {
    ResNode* found = findNthNode(keyPath, n);
    if (!found)
        return returnCode::notFound;
    const std::string file = found->value();
    // A text may well read like a path; it never stands for the file.
    if (!dynamic_cast<const FileResNode*>(found) || extension(file).empty() || !isPlainFile(file))
        return returnCode::success;
    if (!removeFile(file))
        return returnCode::cannotRemove;
    found->clearValue();
    refreshTwins(*found);
    noteChange();
    return returnCode::success;
}

int ThemeResource::restoreDefault(ResNode* node) {
    ZDT_ASSERT(node, source);
    const std::string templatePath = locateTemplate(_rootDirectory, version());
    const std::string file = templateFile(templatePath, node->path() + node->name());
    if (templatePath.empty() || !isPlainFile(file))
        return returnCode::cannotRemove;
    return setLeaf(node, file);
}

std::string ThemeResource::configFilePath(const std::string& fileName) const {
    if (fileName.empty())
        return {};
    ZDT_ASSERT(!fileName.empty() && !_name.empty(), source);
    return settingsFolder(_rootDirectory) + _name + "_" + fileName;
}

std::string ThemeResource::themeDirectory(const std::string& name, bool useTmp) const {
    if (name.empty())
        return {};
    return useTmp ? scratchFolder(_rootDirectory, name) : themeFolder(_rootDirectory, name);
}

std::string ThemeResource::dirPathOf(const ResNode& node) {
    return joinKeyPath(node.keyPath());
}

int ThemeResource::setScreenHeight(std::uint32_t height) {
    if (height < screenHeight)
        return returnCode::notAllowed;
    _amazingNode->setScreenHeight(height);
    return returnCode::success;
}

int ThemeResource::syncCommonSetting(const std::string& module) {
    std::vector<std::string> modules;
    if (module == "contacts")
        modules = {"phone", "recorder", "telecom"};
    else if (module == "launcher" || module == "mms" || module == "systemui")
        modules = {module};
    else
        return returnCode::notAllowed;

    const ResNode* from = node({"contacts", "commonSetting"});
    std::vector<ResNode*> targets;
    for (const std::string& name : modules) {
        if (ResNode* target = node({name, "commonSetting"}))
            targets.push_back(target);
    }
    if (!from || targets.empty())
        return returnCode::notFound;
    for (ResNode* target : targets) {
        for (const ResNode* group = from->firstChild(); group; group = group->next()) {
            for (const ResNode* value = group->firstChild(); value; value = value->next()) {
                // What a target refuses, such as a picture that isn't set, stays as it was there.
                if (ResNode* same = target->findByPath(KeyPath{group->name(), value->name()}))
                    static_cast<void>(setLeaf(same, value->value()));
            }
        }
    }
    return returnCode::success;
}

} // namespace zdt
