#include "lockscreen/customUnlockNode.h"
#include "lockscreen/unlockConfigNode.h"
#include "model/fileResNode.h"
#include "modules/iconsNode.h"
#include "modules/previewNode.h"
#include "modules/themeNode.h"
#include "store/themeResource.h"
#include "support/assertion.h"
#include "support/files.h"
#include "support/pattern.h"
#include "support/text.h"

#include <algorithm>
#include <charconv>
#include <optional>

/// What the author adds to a theme: preview pictures, third-party icons and their backgrounds, a custom lock screen.
namespace zdt {

namespace {

constexpr const char* source = "themeResource";

const KeyPath previewKey{"preview"};
const KeyPath thirdPartyImages{"icons", "thirdparty", "image"};
const KeyPath thirdPartyRules{"icons", "thirdparty", "mode"};
const KeyPath customFiles{"unlock", "custom", "file"};

bool isPreviewPrefix(const std::string& prefix) {
    return matchesPattern(prefix, "preview_(.+)_") && prefix.find('/') == std::string::npos;
}

/// The number of a preview picture of that prefix.
std::optional<unsigned> previewNumber(const std::string& name, const std::string& prefix) {
    std::vector<std::string> groups;
    unsigned number = 0;
    if (!matchesPattern(name, escapePattern(prefix) + R"((\d+)\.jpg)", groups))
        return std::nullopt;
    const std::string& digits = groups.front();
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return result.ec == std::errc() ? std::optional(number) : std::nullopt;
}

/// One above the highest number of a prefix; 0 if there is none.
unsigned nextPreviewNumber(const ResNode& preview, const std::string& prefix) {
    unsigned next = 0;
    for (const ResNode* child = preview.firstChild(); child; child = child->next()) {
        if (const std::optional<unsigned> number = previewNumber(child->name(), prefix))
            next = std::max(next, *number + 1);
    }
    return next;
}

} // namespace

int ThemeResource::setAddedFile(ResNode& parent, std::unique_ptr<FileResNode> fresh, const std::string& file) {
    if (ResNode* standing = parent.findChild(fresh->name()))
        return setLeaf(standing, file);
    ResNode& added = parent.adopt(std::move(fresh));
    const int code = setLeaf(&added, file);
    if (code != returnCode::success)
        parent.deleteChild(&added);
    return code;
}

int ThemeResource::setNumberedPreview(const std::string& file, const std::string& name, std::string& outPath) {
    ResNode* preview = node(previewKey);
    ResNode* picture = preview->findChild(name);
    if (!picture)
        picture = &preview->adopt(makePreviewNode(name, preview->path(), version() == generation9Index));
    const int code = setLeaf(picture, file);
    if (code == returnCode::success)
        outPath = picture->value();
    else
        preview->deleteChild(picture);
    return code;
}

int ThemeResource::addPreview(const std::string& file, const std::string& prefix, std::string& outPath) {
    ZDT_ASSERT(_resTree, source);
    const ResNode* preview = node(previewKey);
    const unsigned index = preview && isPreviewPrefix(prefix) ? nextPreviewNumber(*preview, prefix) : 0;
    return setPreview(file, prefix, index, outPath);
}

int ThemeResource::setPreview(const std::string& file, const std::string& prefix, unsigned index,
                              std::string& outPath) {
    ZDT_ASSERT(_resTree, source);
    if (!isPreviewPrefix(prefix))
        return returnCode::notAllowed;
    if (!pathExists(file))
        return returnCode::missingFile;
    if (!node(previewKey))
        return returnCode::missingParent;
    return setNumberedPreview(file, prefix + std::to_string(index) + ".jpg", outPath);
}

int ThemeResource::replacePreview(const std::string& newFile, const std::string& oldFile) {
    ZDT_ASSERT(_resTree, source);
    if (!pathExists(newFile))
        return returnCode::missingFile;
    if (newFile == oldFile)
        return returnCode::sameFile;
    return setValue(previewKey, fileName(oldFile), newFile);
}

int ThemeResource::deletePreview(const std::string& file) {
    ZDT_ASSERT(_resTree, source);
    if (!pathExists(file))
        return returnCode::missingFile;
    const std::string name = fileName(file);
    if (isProtectedPreview(name))
        return returnCode::protectedPreview;
    ResNode* preview = node(previewKey);
    if (!preview)
        return returnCode::missingParent;
    return removeAddedFile(*preview, name);
}

void ThemeResource::removeNumberedPreviews() {
    ResNode* preview = node(previewKey);
    ResNode* picture = preview ? preview->firstChild() : nullptr;
    while (picture) {
        ResNode* const next = picture->next();
        if (matchesPattern(picture->name(), R"(preview_.+_[1-9]\.jpg)"))
            preview->deleteChild(picture);
        picture = next;
    }
}

int ThemeResource::removeNodeFile(const ResNode& node) const {
    std::string file = node.value();
    if (file.empty() && !node.path().empty())
        file = node.nodeDirectory() + node.name();
    return file.empty() || !pathExists(file) || removeFile(file) ? returnCode::success : returnCode::cannotRemoveFile;
}

int ThemeResource::removeAddedFile(ResNode& parent, const std::string& name) {
    ResNode* child = parent.findChild(name);
    if (!child)
        return returnCode::notFound;
    const int code = removeNodeFile(*child);
    if (code == returnCode::success)
        parent.deleteChild(child);
    return code;
}

int ThemeResource::addThirdPartyIcon(const std::string& file) {
    if (!pathExists(file))
        return returnCode::missingFile;
    const std::string name = fileName(file);
    if (isProtectedIcon(name))
        return returnCode::notAllowed;
    if (!isPrintable(name))
        return returnCode::unprintableName;
    if (!name.ends_with(".png")) // Another spelling would not be found again when the theme is opened.
        return returnCode::wrongKind;
    ResNode* parentNode = node(thirdPartyImages);
    ZDT_ASSERT(parentNode, source);
    return setAddedFile(*parentNode, makeIconNode(name, std::string(iconsDirectory), version() == generation9Index),
                        file);
}

std::map<std::string, int> ThemeResource::addThirdPartyIcons(const std::vector<std::string>& files) {
    if (!node(thirdPartyImages))
        return {{"image", returnCode::missingParent}};
    std::map<std::string, int> codes;
    for (const std::string& file : files)
        codes[fileName(file)] = addThirdPartyIcon(file);
    return codes;
}

int ThemeResource::removeThirdPartyIcon(const std::string& name) {
    ResNode* images = node(thirdPartyImages);
    return images ? removeAddedFile(*images, name) : returnCode::missingParent;
}

int ThemeResource::clearThirdPartyIcons() {
    ResNode* images = node(thirdPartyImages);
    if (!images)
        return returnCode::missingParent;
    int result = returnCode::success;
    for (const ResNode* icon = images->firstChild(); icon; icon = icon->next()) {
        if (const int code = removeNodeFile(*icon))
            result = code;
    }
    images->deleteChildren();
    return result;
}

int ThemeResource::setIconBackground(unsigned index, const std::string& file) {
    ZDT_ASSERT(_resTree, source);
    const std::string name = iconBackgroundName(index);
    if (name.empty())
        return returnCode::notAllowed;
    if (!pathExists(file))
        return returnCode::missingFile;
    if (!isPrintableName(file))
        return returnCode::unprintableName;
    ResNode* parentNode = node(thirdPartyRules);
    ZDT_ASSERT(parentNode, source);
    return setAddedFile(*parentNode, makeIconNode(name, std::string(iconsDirectory), version() == generation9Index),
                        file);
}

int ThemeResource::removeIconBackground(unsigned index) {
    ResNode* rules = node(thirdPartyRules);
    return rules ? removeAddedFile(*rules, iconBackgroundName(index)) : returnCode::notFound;
}

int ThemeResource::setCustomUnlockFile(const std::string& file) {
    ResNode* files = node(customFiles);
    if (!files)
        return returnCode::missingParent;
    const std::string name = fileName(file);
    if (name.empty())
        return returnCode::missingFile;
    const bool isNew = !files->findChild(name);
    const int code = setAddedFile(*files, makeCustomPackageNode(name), file);
    if (code != returnCode::success)
        return code;
    // There is one package: the new one stands last, and what was there before goes, but for the properties.
    for (ResNode* child = files->firstChild(); isNew && child != files->lastChild();) {
        ResNode* const next = child->next();
        if (child->name() != customPropertiesName) {
            static_cast<void>(removeNodeFile(*child));
            files->deleteChild(child);
        }
        child = next;
    }
    ResNode* unlock = node({"unlock"});
    const int typeCode = unlock->setValue(unlockType::custom);
    return typeCode == returnCode::success && !applyNode({"unlock", "config"}) ? returnCode::copyFailed : typeCode;
}

} // namespace zdt
