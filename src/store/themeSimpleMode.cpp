#include "modules/simpleModeNode.h"
#include "store/themeResource.h"
#include "support/assertion.h"
#include "support/files.h"

/// The shared settings of an open theme.
namespace zdt {

namespace {

constexpr const char* source = "themeResource";

} // namespace

SimpleModeImplNode* ThemeResource::simpleItem(const KeyPath& keyPath, const std::string& name) const {
    ZDT_ASSERT(_simpleModeTree, source);
    ResNode* const found = _simpleModeTree->findByPathAndName(keyPath, name);
    return found && found->isLeaf() ? dynamic_cast<SimpleModeImplNode*>(found) : nullptr;
}

std::vector<std::string> ThemeResource::simpleNames(const KeyPath& keyPath) const {
    ZDT_ASSERT(_simpleModeTree, source);
    std::vector<std::string> names;
    const ResNode* const parent = _simpleModeTree->findByPath(keyPath);
    for (const ResNode* child = parent ? parent->firstChild() : nullptr; child; child = child->next())
        names.push_back(child->name());
    return names;
}

std::string ThemeResource::simpleValue(const KeyPath& keyPath, const std::string& name) const {
    const SimpleModeImplNode* const item = simpleItem(keyPath, name);
    return item ? item->majorityValue() : std::string();
}

std::vector<ResNode*> ThemeResource::simpleSources(const KeyPath& keyPath, const std::string& name) const {
    const SimpleModeImplNode* const item = simpleItem(keyPath, name);
    return item ? item->sources() : std::vector<ResNode*>();
}

bool ThemeResource::simpleTakesPart(const KeyPath& keyPath, const std::string& name) const {
    const SimpleModeImplNode* const item = simpleItem(keyPath, name);
    return item && item->takesPart();
}

int ThemeResource::setSimpleValue(const KeyPath& keyPath, const std::string& name, const std::string& value) {
    SimpleModeImplNode* const item = simpleItem(keyPath, name);
    return item ? item->setValue(value) : returnCode::notFound;
}

bool ThemeResource::applySimple(const KeyPath& keyPath, const std::string& name) {
    SimpleModeImplNode* const item = simpleItem(keyPath, name);
    return item && item->save(true);
}

int ThemeResource::changeSimple(const KeyPath& keyPath, const std::string& name, const std::function<int()>& change) {
    // Its folder would come back with one file in it.
    if (!isFolder(themeDirectory(_name, false)))
        return returnCode::copyFailed;
    std::vector<std::pair<ResNode*, std::string>> before;
    for (ResNode* each : simpleSources(keyPath, name))
        before.emplace_back(each, each->value());
    const auto putBack = [&before] {
        for (const auto& [node, old] : before)
            node->setRawValue(old);
    };
    if (const int code = change()) {
        putBack();
        return code;
    }
    if (applySimple(keyPath, name))
        return returnCode::success;
    putBack();
    // What couldn't be written just now still can't be; the others can.
    static_cast<void>(applySimple(keyPath, name));
    return returnCode::copyFailed;
}

int ThemeResource::changeSimpleValue(const KeyPath& keyPath, const std::string& name, const std::string& value) {
    return changeSimple(keyPath, name, [&] { return setSimpleValue(keyPath, name, value); });
}

int ThemeResource::changeSimpleSources(const KeyPath& keyPath, const std::string& name,
                                       const std::vector<std::string>& values) {
    const std::vector<ResNode*> sources = simpleSources(keyPath, name);
    ZDT_ASSERT(sources.size() == values.size(), source);
    if (sources.empty())
        return returnCode::notFound;
    return changeSimple(keyPath, name, [&] {
        for (std::size_t index = 0; index < sources.size(); ++index) {
            if (const int code = sources[index]->setValue(values[index]))
                return code;
        }
        return returnCode::success;
    });
}

} // namespace zdt
