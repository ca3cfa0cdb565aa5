#include "lockscreen/unlockConfigNode.h"
#include "model/fileResNode.h"
#include "model/pictureSize.h"
#include "model/template.h"
#include "modules/themeNode.h"
#include "store/themeResource.h"
#include "support/files.h"
#include "support/text.h"

#include <algorithm>

/// The lock screen of an open theme.
namespace zdt {

namespace {

const KeyPath videoPath{"unlock", "video", "image_set"};
const KeyPath wallpaperVideoPath{"wallpaper", "image_set"};

DesignRect cornerRect(const std::string& file) {
    const PictureSize png = pngSize(file);
    const PictureSize size = png == PictureSize() ? jpegSize(file) : png;
    return {0, 0, static_cast<int>(size.width), static_cast<int>(size.height)};
}

} // namespace

std::string ThemeResource::lockScreenType() const {
    return node({"unlock"})->value();
}

int ThemeResource::setLockScreenType(const std::string& type) {
    if (type.empty())
        return returnCode::emptyValue;
    if (!isXmlText(type) || type.find_first_not_of(" \t\n") == std::string::npos)
        return returnCode::notAllowed;
    ResNode* unlock = node({"unlock"});
    ResNode* style = node({"unlock", "config", "style"});
    const std::string oldType = unlock->value();
    const std::string oldStyle = style->value();
    if (const int code = unlock->setValue(type))
        return code;
    const std::vector<std::string> before = lockFiles();
    if (writeLockScreen())
        return returnCode::success;
    for (const std::string& file : lockFiles()) {
        if (std::find(before.begin(), before.end(), file) == before.end())
            static_cast<void>(removeFile(file));
    }
    unlock->setRawValue(oldType);
    style->setRawValue(oldStyle);
    return returnCode::copyFailed;
}

/// Those of the files that go with a video lock screen which are there.
std::vector<std::string> ThemeResource::lockFiles() const {
    std::vector<std::string> files{_resTree->path() + "unlock/livepaper.xml"};
    for (const ResNode* properties :
         {node({"unlock", "video", "ext.properties"}), node({"wallpaper", "ext.properties"})})
        files.push_back(properties->nodeDirectory() + properties->name());
    std::erase_if(files, [](const std::string& file) { return !isPlainFile(file); });
    return files;
}

/// The file that names the kind comes last: whatever fails before leaves the old kind standing.
bool ThemeResource::writeLockScreen() {
    const std::string type = lockScreenType();
    if (type == unlockType::amazing && !_amazingNode->isReadable() && !_amazingNode->isDamaged()) {
        startLockDesign();
        if (!applyNode({"unlock", "amazing"}))
            return false;
    }
    if (type == unlockType::video &&
        !(applyNode({"unlock", "video"}) && applyNode({"unlock", "video", "ext.properties"}) &&
          applyNode({"wallpaper", "ext.properties"})))
        return false;
    return applyNode({"unlock", "config"});
}

int ThemeResource::setLockVideo(const std::string& file) {
    const int code = setLeaf(node(videoPath)->firstChild(), file);
    ResNode* wallpaper = node(wallpaperVideoPath)->firstChild();
    // The wallpaper's own check is the same, so that it takes what the lock screen took.
    if (code == returnCode::success && wallpaper->value().empty())
        static_cast<void>(setLeaf(wallpaper, file));
    return code;
}

void ThemeResource::takePicturesFromTemplate() {
    const std::string templatePath = locateTemplate(_rootDirectory, version());
    for (const auto& [path, code] : _amazingNode->missingFiles()) {
        const std::string name = fileName(path);
        const std::string file = templateFile(templatePath, path);
        const std::string target = _amazingNode->pictureFile(name);
        // A layout may name what lies elsewhere in the theme; that is no picture to be had here.
        if (target == _resTree->path() + path && isBareFileName(name) && !isTaken(target) && isPlainFile(file))
            static_cast<void>(copyFile(file, target));
    }
}

void ThemeResource::startLockDesign() {
    _amazingNode->startNewDesign();
    takePicturesFromTemplate();
}

int ThemeResource::setLockElementRect(const ElementPath& path, const DesignRect& rect) {
    return changeDesign([&](LockDesign& design) { return design.setRect(path, rect); });
}

int ThemeResource::setLockElementAttributes(const ElementPath& path,
                                            const std::map<std::string, std::string>& attributes) {
    return changeDesign([&](LockDesign& design) { return design.setAttributes(path, attributes); });
}

int ThemeResource::setLockElementChildren(const ElementPath& path, const std::vector<AmazingChild>& children) {
    return changeDesign([&](LockDesign& design) { return design.setChildren(path, children); });
}

int ThemeResource::moveLockElement(std::size_t from, std::size_t to) {
    return changeDesign([&](LockDesign& design) { return design.moveElement(from, to); });
}

int ThemeResource::removeLockElement(std::size_t index) {
    return changeDesign([&](LockDesign& design) {
        const bool hadWallpaper = design.wallpaper() != nullptr;
        const int code = design.removeElement(index);
        if (hadWallpaper && !design.wallpaper())
            setHasLockWallpaper(false);
        return code;
    });
}

int ThemeResource::changeDesign(const std::function<int(LockDesign&)>& change) {
    return _amazingNode->isReadable() ? change(_amazingNode->design()) : designCode::missingElement;
}

int ThemeResource::importDesignPicture(const std::string& file,
                                       const std::function<int(LockDesign&, const std::string&)>& use) {
    return changeDesign([&](LockDesign& design) {
        std::string name;
        if (const int code = _amazingNode->importPicture(file, name))
            return code;
        const int code = use(design, name);
        const std::string copy = _amazingNode->pictureFile(name);
        if (code != returnCode::success && copy != file)
            static_cast<void>(removeFile(copy));
        return code;
    });
}

int ThemeResource::importLockPicture(const std::string& file, std::string& name) {
    return importDesignPicture(file, [&](LockDesign& /*design*/, const std::string& imported) {
        name = imported;
        return returnCode::success;
    });
}

int ThemeResource::addDecoration(const std::string& file, const DesignRect& rect,
                                 const std::map<std::string, std::string>& attributes, std::size_t& index) {
    return importDesignPicture(file, [&](LockDesign& design, const std::string& name) {
        return design.addDecoration(name, rect, attributes, index);
    });
}

int ThemeResource::setDecorationPicture(std::size_t index, const std::string& file) {
    return importDesignPicture(
        file, [&](LockDesign& design, const std::string& name) { return design.setDecorationFile(index, name); });
}

int ThemeResource::removeDecoration(std::size_t index) {
    return changeDesign([&](LockDesign& design) { return design.removeDecoration(index); });
}

int ThemeResource::addLockWallpaper(const WallpaperPictures& pictures) {
    std::vector<WallpaperPictures> all = _amazingNode->wallpaperPictures();
    const auto interval = all.empty() ? WallpaperInterval::minute : _amazingNode->wallpaperInterval();
    all.push_back(pictures);
    return changeDesign([&](LockDesign& /*design*/) {
        return interval ? _amazingNode->setWallpaperPictures(all, *interval) : designCode::notAllowed;
    });
}

int ThemeResource::replaceLockWallpaper(std::size_t row, const WallpaperPictures& pictures) {
    return changeDesign([&](LockDesign& /*design*/) {
        const std::vector<WallpaperPictures> all = _amazingNode->wallpaperPictures();
        if (row >= all.size() || (all[row].file2160.empty() && !pictures.file2160.empty()))
            return designCode::unknownId;
        std::vector<std::pair<std::string, std::string>> given{{all[row].file1920, pictures.file1920},
                                                               {all[row].file2160, pictures.file2160}};
        std::erase_if(given, [](const auto& each) { return each.second.empty(); });
        for (const auto& [standing, file] : given) {
            if (const int code = _amazingNode->checkReplacement(fileName(standing), file))
                return code;
        }
        for (const auto& [standing, file] : given) {
            if (const int code = _amazingNode->replacePicture(fileName(standing), file))
                return code;
        }
        return returnCode::success;
    });
}

int ThemeResource::removeLockWallpaper(std::size_t row) {
    return changeDesign([&](LockDesign& /*design*/) {
        std::vector<WallpaperPictures> all = _amazingNode->wallpaperPictures();
        if (row >= all.size())
            return designCode::unknownId;
        const auto interval = _amazingNode->wallpaperInterval();
        all.erase(all.begin() + static_cast<std::ptrdiff_t>(row));
        return interval ? _amazingNode->setWallpaperPictures(all, *interval) : designCode::notAllowed;
    });
}

int ThemeResource::setLockWallpaperInterval(WallpaperInterval interval) {
    return changeDesign([&](LockDesign& /*design*/) {
        const std::vector<WallpaperPictures> all = _amazingNode->wallpaperPictures();
        return all.empty() ? designCode::missingElement : _amazingNode->setWallpaperPictures(all, interval);
    });
}

void ThemeResource::setHasLockWallpaper(bool has) {
    _amazingNode->setHasWallpaper(has);
}

int ThemeResource::addLockClock() {
    return changeDesign([&](LockDesign& design) {
        design.addClock();
        takePicturesFromTemplate();
        return returnCode::success;
    });
}

int ThemeResource::removeLockClock() {
    return changeDesign([&](LockDesign& design) { return design.removeClock(); });
}

int ThemeResource::removeLockClockPicture() {
    return changeDesign([&](LockDesign& design) { return design.removeClockPicture(); });
}

int ThemeResource::setClockDigitPicture(ClockDigit digit, std::size_t value, const std::string& file) {
    const TimeAboutImage* image = _amazingNode->design().clockDigit(digit);
    if (!image)
        return designCode::missingElement;
    const auto names = image->resources();
    return names && value < names->size() ? _amazingNode->replacePicture((*names)[value], file) : designCode::unknownId;
}

int ThemeResource::setClockPicture(const std::string& file) {
    const TimeAboutImage* image = _amazingNode->design().clockPicture();
    return image ? _amazingNode->replacePicture(image->src(), file) : designCode::missingElement;
}

int ThemeResource::setChargePicture(std::size_t index, const std::string& file) {
    if (index >= chargeConditions.size())
        return designCode::unknownId;
    return importDesignPicture(file, [&](LockDesign& design, const std::string& name) {
        return design.setChargePicture(index, name, cornerRect(file));
    });
}

int ThemeResource::removeChargePicture(std::size_t index) {
    return changeDesign([&](LockDesign& design) { return design.removeChargePicture(index); });
}

int ThemeResource::addMusicControl() {
    return changeDesign([&](LockDesign& design) {
        design.addMusic();
        takePicturesFromTemplate();
        return returnCode::success;
    });
}

int ThemeResource::removeMusicControl() {
    return changeDesign([&](LockDesign& design) { return design.removeMusic(); });
}

int ThemeResource::replaceLockPicture(const std::string& name, const std::string& file) {
    return _amazingNode->replacePicture(name, file);
}

int ThemeResource::addLockText(const std::string& src) {
    return changeDesign([&](LockDesign& design) { return design.addText(src); });
}

int ThemeResource::removeLockText(const std::string& src) {
    return changeDesign([&](LockDesign& design) { return design.removeText(src); });
}

int ThemeResource::addUnlocker(UnlockerKind kind) {
    return changeDesign([&](LockDesign& design) {
        design.addUnlocker(kind);
        return returnCode::success;
    });
}

int ThemeResource::removeUnlocker(UnlockerKind kind) {
    return changeDesign([&](LockDesign& design) { return design.removeUnlocker(kind); });
}

int ThemeResource::setUnlockerStart(UnlockerKind kind, const DesignRect& rect) {
    return changeDesign([&](LockDesign& design) { return design.setStartPoint(kind, rect); });
}

int ThemeResource::setUnlockerEnd(UnlockerKind kind, const DesignRect& rect) {
    return changeDesign([&](LockDesign& design) { return design.setEndPoint(kind, rect); });
}

int ThemeResource::setUnlockMode(int mode) {
    return changeDesign([&](LockDesign& design) { return design.setUnlockMode(mode); });
}

int ThemeResource::addSmartIcon() {
    return changeDesign([](LockDesign& design) {
        design.addSmartIcon();
        return returnCode::success;
    });
}

} // namespace zdt
