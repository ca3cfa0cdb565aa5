#include "lockscreen/amazingUnlockNode.h"
#include "lockscreen/pictureNames.h"
#include "model/pictureSize.h"
#include "model/returnCode.h"
#include "support/files.h"
#include "support/text.h"

#include <algorithm>
#include <array>
#include <string_view>

/// The pictures that an author gives to a design.
namespace zdt {

namespace {

struct IntervalDigit {
    std::string_view variable;
    std::size_t values;
};

/// The digits of the clock by the interval in which they change.
constexpr std::array<IntervalDigit, 3> intervalDigits{
    {{"system.time.min2", 10}, {"system.time.min1", 6}, {"system.time.hour2", 10}}};

const IntervalDigit& digitOf(WallpaperInterval interval) {
    return intervalDigits.at(static_cast<std::size_t>(interval));
}

bool isPng(const std::string& file) {
    return pngSize(file) != PictureSize();
}

bool isJpeg(const std::string& file) {
    return jpegSize(file) != PictureSize();
}

int checkPicture(const std::string& file) {
    if (!isPlainFile(file))
        return returnCode::missingFile;
    const std::uint64_t bytes = fileSize(file);
    if (bytes == 0 || bytes > maxDesignPictureBytes)
        return returnCode::wrongByteSize;
    return isPng(file) || isJpeg(file) ? returnCode::success : returnCode::unreadablePicture;
}

constexpr std::string_view ninePatchEnding = ".9.png";

/// The ending that a picture gets: a nine-patch keeps its own, since the phone knows it by that.
std::string endingFor(const std::string& file) {
    if (!isPng(file))
        return ".jpg";
    return std::string(file.ends_with(ninePatchEnding) ? ninePatchEnding : ".png");
}

bool isSafe(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

/// The file's name without its ending, with "_" for every sign that a `src` or the phone could misread.
std::string safeStem(const std::string& file) {
    constexpr std::size_t longest = 64;
    std::string name = fileName(file);
    name = (name.ends_with(ninePatchEnding) ? name.substr(0, name.size() - ninePatchEnding.size()) : stem(name))
               .substr(0, longest);
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !isSafe(c); }, '_');
    return name.empty() ? "picture" : name;
}

bool isSafeName(const std::string& name) {
    return !changesWithTime(name) && !name.empty() && name.front() != '.' &&
           std::all_of(name.begin(), name.end(), [](char c) { return isSafe(c) || c == '.'; });
}

/// Both halves of a pair, or one picture.
bool arePairs(const std::vector<WallpaperPictures>& pictures) {
    return std::all_of(pictures.begin(), pictures.end(), [&](const WallpaperPictures& each) {
        return !each.file1920.empty() && each.file2160.empty() == pictures.front().file2160.empty();
    });
}

/// "%n" leaves out a digit's last value, so that a full turn is written without it.
std::string wallpaperSource(const std::string& prefix, std::size_t count, WallpaperInterval interval, bool paired) {
    const IntervalDigit& digit = digitOf(interval);
    const std::string turn = count < digit.values ? "%" + std::to_string(count) : std::string();
    return (paired ? std::string(heightToken) + "+" : std::string()) + "'" + prefix + "'+" +
           std::string(digit.variable) + turn + "+'.jpg'";
}

} // namespace

std::size_t maxWallpaperPictures(WallpaperInterval interval) {
    return digitOf(interval).values;
}

std::string AmazingUnlockNode::freePictureName(const std::string& file) const {
    const std::string base = safeStem(file);
    const std::string ending = endingFor(file);
    const std::set<std::string> named = namedPictures();
    std::string name = base + ending;
    for (int number = 2; named.contains(name) || isTaken(pictureFile(name)); ++number)
        name = base + "_" + std::to_string(number) + ending;
    return name;
}

int AmazingUnlockNode::importPicture(const std::string& file, std::string& name) {
    if (const int code = checkPicture(file))
        return code;
    const std::string standing = fileName(file);
    if (file == pictureFile(standing) && isSafeName(standing)) {
        name = standing;
        return returnCode::success;
    }
    const std::string fresh = freePictureName(file);
    if (!copyFile(file, pictureFile(fresh)))
        return returnCode::copyFailed;
    _ownPictures.insert(fresh);
    name = fresh;
    return returnCode::success;
}

int AmazingUnlockNode::checkReplacement(const std::string& name, const std::string& file) const {
    if (!isBareFileName(name) || !namedPictures().contains(name))
        return designCode::unknownId;
    if (const int code = checkPicture(file))
        return code;
    const std::string ending = toLowerAscii(extension(name));
    const bool fits = isPng(file) ? ending == ".png" : ending == ".jpg" || ending == ".jpeg";
    return fits ? returnCode::success : returnCode::wrongKind;
}

int AmazingUnlockNode::replacePicture(const std::string& name, const std::string& file) const {
    if (const int code = checkReplacement(name, file))
        return code;
    return copyFile(file, pictureFile(name)) ? returnCode::success : returnCode::copyFailed;
}

std::vector<WallpaperPictures> AmazingUnlockNode::wallpaperPictures() const {
    std::vector<WallpaperPictures> pictures;
    const LockWallPaper* wallpaper = _design.wallpaper();
    if (!wallpaper)
        return pictures;
    const bool paired = wallpaper->src().find(heightToken) != std::string::npos;
    for (std::size_t row = 0; row < wallpaper->files1920().size(); ++row)
        pictures.push_back({pictureFile(wallpaper->files1920()[row]),
                            paired ? pictureFile(wallpaper->files2160()[row]) : std::string()});
    return pictures;
}

std::optional<WallpaperInterval> AmazingUnlockNode::wallpaperInterval() const {
    const LockWallPaper* wallpaper = _design.wallpaper();
    std::vector<std::string> variables = splitSource(wallpaper ? wallpaper->src() : std::string());
    std::erase_if(variables, [](const std::string& token) { return token.find('\'') != std::string::npos; });
    if (variables.size() != 1)
        return std::nullopt;
    for (std::size_t interval = 0; interval < intervalDigits.size(); ++interval) {
        const std::string variable(intervalDigits[interval].variable);
        if (variables.front() == variable || variables.front().starts_with(variable + "%"))
            return static_cast<WallpaperInterval>(interval);
    }
    return std::nullopt;
}

std::string AmazingUnlockNode::freeWallpaperPrefix() const {
    const std::vector<std::string> files = listFiles(pictureFile({}));
    const auto isUsed = [&](const std::string& prefix) {
        return std::any_of(files.begin(), files.end(), [&](const std::string& file) {
            return file.starts_with(prefix) || file.starts_with(std::string(tallPrefix) + prefix);
        });
    };
    std::string prefix = "wallpaper_";
    for (int number = 2; isUsed(prefix); ++number)
        prefix = "wallpaper" + std::to_string(number) + "_";
    return prefix;
}

int AmazingUnlockNode::copyWallpaper(const std::vector<WallpaperPictures>& pictures, const std::string& prefix) {
    for (std::size_t row = 0; row < pictures.size(); ++row) {
        const std::string name = prefix + std::to_string(row) + ".jpg";
        const std::string tallName = std::string(tallPrefix) + name;
        const auto& [file1920, file2160] = pictures[row];
        _ownPictures.insert({name, tallName});
        if (!copyFile(file1920, pictureFile(name)) || (!file2160.empty() && !copyFile(file2160, pictureFile(tallName))))
            return returnCode::copyFailed;
    }
    return returnCode::success;
}

int AmazingUnlockNode::setWallpaperPictures(const std::vector<WallpaperPictures>& pictures,
                                            WallpaperInterval interval) {
    if (!_readable)
        return designCode::missingElement;
    if (pictures.empty() || pictures.size() > maxWallpaperPictures(interval) || !arePairs(pictures))
        return designCode::notAllowed;
    const bool paired = !pictures.front().file2160.empty();
    for (const auto& [file1920, file2160] : pictures) {
        for (const std::string& file : {file1920, paired ? file2160 : file1920}) {
            const int code = checkPicture(file);
            if (code != returnCode::success || !isJpeg(file))
                return code != returnCode::success ? code : returnCode::wrongKind;
        }
    }
    // All of them get new names: until the layout is written, the one on disk finds its pictures as they were.
    const std::string prefix = freeWallpaperPrefix();
    if (const int code = copyWallpaper(pictures, prefix))
        return code;
    if (const int code = _design.setWallpaperSource(wallpaperSource(prefix, pictures.size(), interval, paired)))
        return code;
    _design.lookUpWallpaperFiles(pictureFile({}));
    _hasWallpaper = true;
    return returnCode::success;
}

} // namespace zdt
