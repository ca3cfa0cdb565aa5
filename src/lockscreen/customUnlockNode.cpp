#include "lockscreen/customUnlockNode.h"

#include "lockscreen/unlockConfigNode.h"
#include "lockscreen/videoUnlockNode.h"
#include "support/files.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace zdt {

namespace {

const ResNode* unlockNodeOf(const ResNode& file) {
    return file.ancestor(2); // above `file` and `custom`
}

/// The first file of a folder, by name, that is the package; empty if there is none.
std::string packageIn(const std::string& directory) {
    std::vector<std::string> names = listFiles(directory);
    std::erase(names, customPropertiesName);
    return names.empty() ? std::string() : *std::min_element(names.begin(), names.end());
}

} // namespace

bool CustomUnlockFile::save(bool /*all*/) {
    const ResNode* unlock = unlockNodeOf(*this);
    if (value().empty() || !unlock || unlock->value() != unlockType::custom || value() == targetPath())
        return true;
    const std::string directory = dynamicLockDirectory(*unlock);
    return !rootDirectory().empty() && !directory.empty() && copyFile(value(), rootDirectory() + directory + name());
}

std::unique_ptr<CustomUnlockFile> makeCustomPackageNode(const std::string& name) {
    auto node = std::make_unique<CustomUnlockFile>(name);
    node->setPath(customUnlockDirectory);
    node->setMaxBytes(maxCustomUnlockBytes);
    return node;
}

CustomUnlockNode::CustomUnlockNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "custom") {
    setPath(customUnlockDirectory);
    auto& file = emplaceChild<ResNode>(typeMask::everywhere, "file");
    file.setPath(customUnlockDirectory);
    auto& properties = file.adopt(std::make_unique<CustomUnlockFile>(customPropertiesName));
    properties.setPath(customUnlockDirectory);
    properties.loadFromTheme();
    if (rootDirectory().empty())
        return;

    if (const std::string own = packageIn(nodeDirectory()); !own.empty()) {
        file.adopt(makeCustomPackageNode(own)).loadFromTheme();
        return;
    }
    // An imported theme holds the files where the phone looks for them; they are taken from there.
    const std::string installed = rootDirectory() + dynamicLockDirectory(*parent);
    const std::string name = parent->value() == unlockType::custom ? packageIn(installed) : std::string();
    if (name.empty())
        return;
    file.adopt(makeCustomPackageNode(name)).setRawValue(installed + name);
    if (properties.value().empty() && isPlainFile(installed + customPropertiesName))
        properties.setRawValue(installed + customPropertiesName);
}

ResNode* CustomUnlockNode::package() const {
    const ResNode* file = findChild("file");
    ResNode* child = file ? file->firstChild() : nullptr;
    while (child && child->name() == customPropertiesName)
        child = child->next();
    return child;
}

} // namespace zdt
