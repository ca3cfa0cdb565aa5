#include "lockscreen/amazingElements.h"

#include "lockscreen/geometry.h"
#include "lockscreen/pictureNames.h"
#include "support/files.h"

#include <algorithm>

namespace zdt {

namespace {

void dropMissingFromEnd(std::vector<std::string>& names, const std::string& directory) {
    while (!names.empty() && !pathExists(directory + names.back()))
        names.pop_back();
}

} // namespace

LockWallPaper::LockWallPaper(AmazingChild&& element)
    : TimeAboutImage(std::move(element))
    , _isRefused(!expandSource(src())) {
    if (_isRefused)
        return;
    const std::vector<std::string> tokens = splitSource(src());
    std::vector<std::string> tokens1920 = tokens;
    std::erase(tokens1920, heightToken);
    std::vector<std::string> tokens2160 = tokens;
    std::replace(tokens2160.begin(), tokens2160.end(), std::string(heightToken), "'" + std::string(tallPrefix) + "'");
    _files1920 = expandTokens(tokens1920).value_or(std::vector<std::string>());
    _files2160 = expandTokens(tokens2160).value_or(std::vector<std::string>());
    if (!_files1920.empty() && !_files2160.empty())
        _firstPair = {_files1920.front(), _files2160.front()};
}

void LockWallPaper::lookUpFiles(const std::string& directory) {
    if (directory.empty() || !isFolder(directory))
        return;
    dropMissingFromEnd(_files1920, directory);
    dropMissingFromEnd(_files2160, directory);
    const std::size_t pairs = std::min(_files1920.size(), _files2160.size());
    _files1920.resize(pairs);
    _files2160.resize(pairs);
}

std::optional<std::vector<std::string>> LockWallPaper::resources() const {
    if (_isRefused)
        return std::nullopt;
    if (_files1920.empty())
        return _firstPair;
    std::vector<std::string> names = _files1920;
    if (_files2160 != _files1920) // as they are without the height in the `src`
        names.insert(names.end(), _files2160.begin(), _files2160.end());
    return names;
}

std::vector<AmazingChild*> UnlockerData::childrenNamed(const std::string& name) const {
    std::vector<AmazingChild*> named;
    for (const auto& child : children()) {
        if (child->name() == name)
            named.push_back(child.get());
    }
    return named;
}

int UnlockerData::unlockerKind() const {
    const std::vector<AmazingChild*> starts = startPoints();
    const std::vector<AmazingChild*> ends = endPoints();
    if (starts.size() != 1 || ends.empty())
        return 0;
    const bool samePlace = std::all_of(geometryKeys.begin(), geometryKeys.end(), [&](const char* key) {
        return starts.front()->attribute(key) == ends.front()->attribute(key);
    });
    return samePlace ? 1 : 2;
}

bool isFullScreen(const AmazingChild& element) {
    const std::string height = element.attribute("h");
    return element.attribute("x") == "0" && element.attribute("y") == "0" && element.attribute("w") == "1080" &&
           (height == "1920" || height == "2160" || height == screenHeightVariable);
}

bool changesWithTime(const std::string& src) {
    return src.find("system.time.") != std::string::npos;
}

bool isWallpaper(const AmazingChild& element) {
    return element.name() == "image" && isFullScreen(element) && changesWithTime(element.src());
}

} // namespace zdt
