#include "lockscreen/videoUnlockNode.h"

#include "lockscreen/unlockConfigNode.h"
#include "model/fileResNode.h"
#include "model/textResNode.h"
#include "support/files.h"
#include "support/keyValueFile.h"
#include "support/pattern.h"
#include "support/xmlFile.h"

#include <memory>

namespace zdt {

namespace {

constexpr const char* propertiesFile = "ext.properties";
constexpr const char* videoNamePattern = R"([^/]+\.mp4)";
constexpr const char* livepaperFile = "unlock/livepaper.xml";

/// What a block of a video is, by the name of the node that holds it.
struct VideoRole {
    std::string directory;
    std::string key;
    std::string defaultFile;
};

VideoRole roleOf(const ResNode& owner) {
    if (owner.name() == "wallpaper")
        return {"wallpaper/", "wallpaper_video", "wallpaper.mp4"};
    return {owner.parent() ? dynamicLockDirectory(*owner.parent()) : std::string(), "unlockVideo", defaultLockVideo};
}

/// What `ext.properties` says. An imported theme can name neither a file outside its own directory nor one that
/// is no video: such a name counts as none.
KeyValues readProperties(const std::string& directory, const VideoRole& role) {
    KeyValues properties = directory.empty() ? KeyValues() : readKeyValueFile(directory + propertiesFile);
    const auto named = properties.find(role.key);
    if (named == properties.end() || !matchesPattern(named->second, videoNamePattern))
        properties[role.key] = role.defaultFile;
    return properties;
}

bool lockScreenIsVideo(ResNode& node) {
    const ResNode* unlock = node.rootNode()->findChild("unlock");
    return unlock && unlock->value() == unlockType::video;
}

} // namespace

std::string dynamicLockDirectory(const ResNode& unlock) {
    const ResNode* config = unlock.findChild("config");
    const ResNode* dynamicPath = config ? config->findChild("dynamicPath") : nullptr;
    return dynamicPath && !dynamicPath->value().empty() ? "unlock/" + dynamicPath->value() + "/" : std::string();
}

VideoUnlockConfig::VideoUnlockConfig(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, propertiesFile) {
    const VideoRole role = roleOf(*parent);
    setPath(role.directory);
    KeyValues properties = readProperties(nodeDirectory(), role);
    if (const std::string file = nodeDirectory() + propertiesFile; !nodeDirectory().empty() && !loadKeyValueFile(file))
        _damaged.note(file);
    properties.try_emplace("video_mode", "1");
    for (const auto& [key, value] : properties) {
        // The file can hold neither an empty value nor a line break.
        adopt(std::make_unique<TextResNode>(key, value)).setRegex(key == role.key ? videoNamePattern : ".+");
    }
}

bool VideoUnlockConfig::save(bool all) {
    if (!all && !lockScreenIsVideo(*this))
        return true;
    const std::string directory = nodeDirectory();
    if (directory.empty() || !makePath(directory))
        return false;
    KeyValues properties;
    for (const ResNode* child = firstChild(); child; child = child->next())
        properties[child->name()] = child->value();
    const std::string file = directory + propertiesFile;
    return _damaged.keepFrom(file) && writeKeyValueFile(file, properties);
}

VideoUnlockImageSet::VideoUnlockImageSet(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "image_set") {
    const VideoRole role = roleOf(*parent);
    setPath(role.directory);
    auto& video = adopt(std::make_unique<FileResNode>(readProperties(nodeDirectory(), role).at(role.key)));
    video.setPath(role.directory);
    video.setMaxBytes(maxVideoBytes);
    video.loadFromTheme();
}

VideoUnlockNode::VideoUnlockNode(ResNode* parent)
    : ResNode(parent, typeMask::everywhere, "video") {
    setPath("unlock/");
    emplaceChild<VideoUnlockConfig>();
    emplaceChild<VideoUnlockImageSet>();
}

bool VideoUnlockNode::save(bool all) {
    if (!all && !lockScreenIsVideo(*this))
        return true;
    const std::string directory = rootDirectory();
    if (directory.empty() || !makePath(directory + livepaperFile))
        return false;
    tinyxml2::XMLDocument document;
    tinyxml2::XMLElement& root = startXml(document, "ZDTheme");
    addXmlElement(root, "pkgname", videoLockPackage);
    addXmlElement(root, "classname", "com.zendro.video.VideoWallpaperService");
    return saveXml(document, directory + livepaperFile);
}

} // namespace zdt
