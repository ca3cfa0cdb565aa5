#include "lockscreen/amazingUnlockNode.h"

#include "lockscreen/amazingElements.h"
#include "model/fileResNode.h"
#include "model/returnCode.h"
#include "support/files.h"

#include <algorithm>

namespace zdt {

namespace {

constexpr const char* layoutDirectory = "unlock/layout-hdpi/";
constexpr const char* drawableDirectory = "unlock/drawable-hdpi/";

std::string configuredLayout(const ResNode* unlock) {
    const ResNode* config = unlock ? unlock->findChild("config") : nullptr;
    const ResNode* layout = config ? config->findChild("layout") : nullptr;
    return layout && !layout->value().empty() ? layout->value() : "layout1";
}

void addMissing(std::vector<std::string>& missing, const std::string& file) {
    if (std::find(missing.begin(), missing.end(), file) == missing.end())
        missing.push_back(file);
}

void collectMissing(const AmazingChild& element, const std::string& themeDirectory, std::vector<std::string>& missing) {
    const auto names = element.resources();
    if (!names)
        addMissing(missing, drawableDirectory + element.src());
    for (const std::string& name : names.value_or(std::vector<std::string>())) {
        const std::string file = drawableDirectory + name;
        if (!isBareFileName(name) || !isPlainFile(themeDirectory + file))
            addMissing(missing, file);
    }
    for (const auto& child : element.children())
        collectMissing(*child, themeDirectory, missing);
}

} // namespace

AmazingUnlockNode::AmazingUnlockNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "amazing")
    , _layoutName(configuredLayout(parent))
    , _themeDirectory(rootDirectory())
    , _screenHeight(rootTypeMask() & typeMask::generation9 ? tallScreenHeight : zdt::screenHeight) {
    if (_themeDirectory.empty())
        return;
    _isFull = pathExists(layoutPath(_themeDirectory, true));
    _readable = readLayout(layoutPath(_themeDirectory, _isFull), _elements);
    if (_isFull)
        _isFixedReadable = readLayout(layoutPath(_themeDirectory, false), _fixedElements);
    for (const auto& element : _elements) {
        if (auto* wallpaper = dynamic_cast<LockWallPaper*>(element.get())) {
            wallpaper->lookUpFiles(_themeDirectory + drawableDirectory);
            _hasWallpaper = true;
        }
    }
}

std::string AmazingUnlockNode::layoutPath(const std::string& themeDirectory, bool full) const {
    return themeDirectory + layoutDirectory + _layoutName + (full ? "_full.xml" : ".xml");
}

bool AmazingUnlockNode::save(bool /*all*/) {
    const std::string target = rootDirectory();
    if (!parent() || target.empty() || generationIndex(rootTypeMask()) == unknownGeneration)
        return false;
    if (!_readable)
        return true;
    if (target != _themeDirectory && !copyPictures(target))
        return false;
    const bool isGeneration5 = generationIndex(rootTypeMask()) == 0;
    if (!writeLayout(layoutPath(target, _isFull && isGeneration5), _elements))
        return false;
    if (isGeneration5)
        return _fixedElements.empty() || writeLayout(layoutPath(target, false), _fixedElements);
    // Later generations have one form, and a full one left behind would win over it.
    const std::string leftBehind = layoutPath(target, true);
    return !pathExists(leftBehind) || removeFile(leftBehind);
}

bool AmazingUnlockNode::copyPictures(const std::string& targetTheme) const {
    return std::all_of(_elements.begin(), _elements.end(), [&](const auto& element) {
        return element->copyResources(_themeDirectory + drawableDirectory, targetTheme + drawableDirectory);
    });
}

int AmazingUnlockNode::validate(const std::string& /*value*/) {
    const ResNode* unlock = parent();
    if (!unlock || unlock->value() != name() || missingFiles().empty())
        return 0;
    return fail(returnCode::missingFile);
}

std::vector<std::string> AmazingUnlockNode::missingFiles() const {
    std::vector<std::string> missing;
    if (!_readable)
        addMissing(missing, layoutPath({}, _isFull));
    if (!_isFixedReadable && generationIndex(rootTypeMask()) == 0)
        addMissing(missing, layoutPath({}, false));
    for (const auto& element : _elements)
        collectMissing(*element, _themeDirectory, missing);
    return missing;
}

} // namespace zdt
