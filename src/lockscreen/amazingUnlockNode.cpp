#include "lockscreen/amazingUnlockNode.h"

#include "lockscreen/unlockConfigNode.h"
#include "model/fileResNode.h"
#include "model/returnCode.h"
#include "support/files.h"

#include <algorithm>
#include <memory>

/// Opening, saving and checking the design.
namespace zdt {

namespace {

constexpr const char* layoutDirectory = "unlock/layout-hdpi/";
constexpr const char* drawableDirectory = "unlock/drawable-hdpi/";

std::string configuredLayout(const ResNode* unlock) {
    const ResNode* config = unlock ? unlock->findChild("config") : nullptr;
    const ResNode* layout = config ? config->findChild("layout") : nullptr;
    return layout && !layout->value().empty() ? layout->value() : "layout1";
}

/// The files that an element and its children need and that aren't there.
class MissingFiles {
public:
    explicit MissingFiles(std::string themeDirectory)
        : _themeDirectory(std::move(themeDirectory)) {}

    void add(const std::string& path, int code) {
        if (_known.insert(path).second)
            _list.push_back({path, code});
    }

    void addPicturesOf(const AmazingChild& element, int code) {
        const auto names = element.resources();
        if (!names)
            add(drawableDirectory + element.src(), code);
        for (const std::string& name : names.value_or(std::vector<std::string>())) {
            const std::string file = drawableDirectory + name;
            if (!isBareFileName(name) || !isPlainFile(_themeDirectory + file))
                add(file, code);
        }
        for (const auto& child : element.children())
            addPicturesOf(*child, code);
    }

    [[nodiscard]] std::vector<AmazingUnlockNode::Missing> take() { return std::move(_list); }

private:
    std::string _themeDirectory;
    std::vector<AmazingUnlockNode::Missing> _list;
    std::set<std::string> _known;
};

void collectNames(const AmazingChild& element, std::set<std::string>& names) {
    for (std::string& name : element.resources().value_or(std::vector<std::string>()))
        names.insert(std::move(name));
    for (const auto& child : element.children())
        collectNames(*child, names);
}

} // namespace

AmazingUnlockNode::AmazingUnlockNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "amazing")
    , _layoutName(configuredLayout(parent))
    , _themeDirectory(rootDirectory())
    , _screenHeight(rootTypeMask() & typeMask::generation9 ? tallScreenHeight : zdt::screenHeight) {
    if (!_themeDirectory.empty())
        readDesign();
}

void AmazingUnlockNode::readDesign() {
    const std::string full = layoutPath(_themeDirectory, true);
    const std::string file = pathExists(full) ? full : layoutPath(_themeDirectory, false);
    LayoutElements elements;
    _readable = readLayout(file, elements);
    if (!_readable)
        _damaged.note(file);
    _design = LockDesign(std::move(elements), _screenHeight);
    _design.lookUpWallpaperFiles(pictureFile({}));
    _hasWallpaper = _design.wallpaper() != nullptr;
    _ownPictures = namedPictures();
}

void AmazingUnlockNode::startNewDesign() {
    _design = LockDesign::makeDefault(_screenHeight);
    _readable = true;
    _hasWallpaper = false;
}

void AmazingUnlockNode::setScreenHeight(std::uint32_t height) {
    _screenHeight = height;
    _design.setHeight(height < tallScreenHeight ? zdt::screenHeight : tallScreenHeight);
}

std::string AmazingUnlockNode::layoutPath(const std::string& themeDirectory, bool full) const {
    return themeDirectory + layoutDirectory + _layoutName + (full ? "_full.xml" : ".xml");
}

std::string AmazingUnlockNode::pictureFile(const std::string& name) const {
    return _themeDirectory + drawableDirectory + name;
}

std::string AmazingUnlockNode::typeOfLock() const {
    return parent() ? parent()->value() : std::string();
}

std::set<std::string> AmazingUnlockNode::namedPictures() const {
    std::set<std::string> names;
    for (const auto& element : _design.elements())
        collectNames(*element, names);
    return names;
}

bool AmazingUnlockNode::save(bool /*all*/) {
    const std::string target = rootDirectory();
    if (!parent() || target.empty() || generationIndex(rootTypeMask()) == unknownGeneration)
        return false;
    const bool isProject = target == _themeDirectory;
    if (!isProject && typeOfLock() == unlockType::video)
        return writeVideoLayout(target);
    if (!_readable)
        return true;
    if (!isProject)
        return copyPictures(target) && writeForms(target);
    if (!_damaged.keepFrom(_damaged.path()) || !writeForms(target))
        return false;
    removeUnnamedPictures();
    return true;
}

bool AmazingUnlockNode::writeForms(const std::string& target) {
    const std::string full = layoutPath(target, true);
    const std::string plain = layoutPath(target, false);
    if (generationIndex(rootTypeMask()) == 0) {
        if (!writeLayout(full, _design.elements()))
            return false;
        const FixedHeightForm fixed(_design.elements(), zdt::screenHeight);
        return writeLayout(plain, _design.elements());
    }
    // Later generations have one form, and a full one left behind would win over it.
    return writeLayout(plain, _design.elements()) && (!pathExists(full) || removeFile(full));
}

bool AmazingUnlockNode::writeVideoLayout(const std::string& target) const {
    LayoutElements texts;
    for (const layoutDefaults::Text& row : layoutDefaults::texts) {
        if (row.src == layoutDefaults::dateSource || row.src == layoutDefaults::amPmSource)
            texts.push_back(std::make_unique<AmazingChild>(layoutDefaults::makeText(row)));
    }
    return writeLayout(layoutPath(target, false), texts);
}

bool AmazingUnlockNode::copyPictures(const std::string& targetTheme) const {
    const std::string target = targetTheme + drawableDirectory;
    if (typeOfLock() == name())
        return std::all_of(_design.elements().begin(), _design.elements().end(),
                           [&](const auto& element) { return element->copyResources(pictureFile({}), target); });
    // A design that isn't the theme's lock screen goes along as far as it is there; no check asks for its pictures.
    const std::set<std::string> names = namedPictures();
    return std::all_of(names.begin(), names.end(), [&](const std::string& name) {
        const std::string file = pictureFile(name);
        return !isBareFileName(name) || !isPlainFile(file) || linkOrCopyFile(file, target + name);
    });
}

void AmazingUnlockNode::removeUnnamedPictures() {
    std::set<std::string> named = namedPictures();
    for (const std::string& name : _ownPictures) {
        // One that can't be removed does no harm.
        if (!named.contains(name) && isBareFileName(name) && isPlainFile(pictureFile(name)))
            static_cast<void>(removeFile(pictureFile(name)));
    }
    _ownPictures = std::move(named);
}

bool AmazingUnlockNode::hasVideo() const {
    ResNode* videos = parent()->findByPath(KeyPath{"video", "image_set"});
    ResNode* video = videos ? videos->firstChild() : nullptr;
    return video && video->validate(video->value()) == returnCode::success;
}

int AmazingUnlockNode::validate(const std::string& /*value*/) {
    const std::string type = typeOfLock();
    if (type == unlockType::video)
        return hasVideo() ? returnCode::success : fail(returnCode::missingFile);
    const std::vector<Missing> missing = type == name() ? missingFiles() : std::vector<Missing>();
    if (missing.empty())
        return returnCode::success;
    const bool lacksMusic =
        std::any_of(missing.begin(), missing.end(), [](const Missing& file) { return file.code == incompleteMusic; });
    return fail(lacksMusic ? incompleteMusic : returnCode::missingFile);
}

std::vector<AmazingUnlockNode::Missing> AmazingUnlockNode::missingFiles() const {
    MissingFiles missing(_themeDirectory);
    if (!_readable && isDamaged())
        missing.add(_damaged.path().substr(_themeDirectory.size()), returnCode::damagedFile);
    else if (!_readable)
        missing.add(layoutPath({}, false), returnCode::missingFile);
    for (const auto& element : _design.elements()) {
        const ElementKind kind = _design.kindOf(*element);
        const bool isMusic = kind == ElementKind::music || kind == ElementKind::button;
        missing.addPicturesOf(*element, isMusic ? incompleteMusic : returnCode::missingFile);
    }
    return missing.take();
}

} // namespace zdt
