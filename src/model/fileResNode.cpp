#include "model/fileResNode.h"

#include "model/pictureSize.h"
#include "model/returnCode.h"
#include "model/template.h"
#include "support/assertion.h"
#include "support/files.h"
#include "support/text.h"

#include <algorithm>
#include <array>

namespace zdt {

namespace {

constexpr const char* source = "fileResNode";

constexpr std::string_view coverName = "cover.jpg";
constexpr std::string_view smallIconName = "icon_small.jpg";
constexpr std::string_view squareIconName = "icon_small_1.jpg";

/// Unlike a theme's own index, the highest generation bit wins here.
unsigned highestGenerationIndex(TypeMask mask) {
    for (unsigned index = generationCount; index-- > 0;) {
        if (mask & generationBit(index))
            return index;
    }
    return unknownGeneration;
}

} // namespace

std::uint32_t fileKindOf(const std::string& path) {
    const std::string suffix = toLowerAscii(extension(path));
    return suffix == ".png" ? fileKind::png : suffix == ".jpg" ? fileKind::jpeg : fileKind::other;
}

int FileResNode::validate(const std::string& value) {
    struct stat status {};
    const bool exists = !value.empty() && ::stat(value.c_str(), &status) == 0;
    const int code = exists ? codeOf(value, status) : returnCode::missingFile;
    return code == 0 ? 0 : fail(code);
}

int FileResNode::codeOf(const std::string& path, const struct stat& status) const {
    if (!S_ISREG(status.st_mode))
        return returnCode::missingFile;
    const auto size = static_cast<std::uint64_t>(status.st_size);
    if (size == 0 || (_maxBytes != 0 && size > _maxBytes))
        return returnCode::wrongByteSize;
    const std::uint32_t kind = fileKindOf(path);
    return (kind & _allowedKinds) == 0 ? returnCode::wrongKind : pictureSizeCode(path, kind);
}

int FileResNode::pictureSizeCode(const std::string& path, std::uint32_t kind) const {
    if (kind == fileKind::other)
        return 0;
    const PictureSize size = kind == fileKind::png ? pngSize(path) : jpegSize(path);
    if (size.width == 0 && size.height == 0)
        return returnCode::unreadablePicture;
    const bool fits = std::any_of(_sizeRanges.begin(), _sizeRanges.end(),
                                  [&](const SizeRange& range) { return range.contains(size.width, size.height); });
    const bool isFlat = size.width == 0 || size.height == 0;
    return isFlat || !(fits || _sizeRanges.empty()) ? returnCode::wrongDimensions : 0;
}

int FileResNode::setValue(const std::string& value) {
    if (const int code = validate(value))
        return code;
    const std::string target = targetPath();
    if (target.empty()) {
        setRawValue(value);
        return 0;
    }
    if (!makePath(target))
        return returnCode::cannotMakeFolder;
    if (!copyFile(value, target))
        return returnCode::copyFailed;
    setRawValue(target);
    return 0;
}

bool FileResNode::save(bool /*all*/) {
    const std::string target = targetPath();
    if (target.empty())
        return false;
    return target == value() || linkOrCopyFile(value(), target);
}

std::string FileResNode::defaultValue() const {
    const unsigned version = highestGenerationIndex(rootTypeMask());
    constexpr unsigned OVUI_UNKOWN = unknownGeneration;
    ZDT_ASSERT(version != OVUI_UNKOWN, source);
    const std::string directory = locateTemplate(storeRootOf(rootDirectory()), version);
    return directory.empty() || path().empty() ? std::string() : templateFile(directory, path() + name());
}

std::string FileResNode::targetPath() const {
    const std::string directory = nodeDirectory();
    return directory.empty() ? std::string() : directory + name();
}

void FileResNode::loadFromTheme() {
    const std::string target = targetPath();
    struct stat status {};
    if (target.empty() || ::stat(target.c_str(), &status) != 0)
        return;
    const int code = codeOf(target, status);
    if (code != 0)
        static_cast<void>(fail(code));
    setRawValue(code == 0 ? target : std::string());
}

std::vector<SizeRange> iconSizes(bool strict) {
    if (strict)
        return {SizeRange(iconSide)};
    return {SizeRange(iconSide), SizeRange(largeIconSide)};
}

std::unique_ptr<FileResNode> makeIconNode(const std::string& name, const std::string& path, bool strict) {
    auto node = std::make_unique<FileResNode>(name);
    node->setPath(path);
    node->setAllowedKinds(fileKind::png);
    node->setSizeRanges(iconSizes(strict));
    return node;
}

std::vector<std::unique_ptr<FileResNode>> makeIconNodes(const std::vector<std::string>& names, const std::string& path,
                                                        bool strict) {
    return makeIconNodes(std::vector<TypeMask>(names.size(), typeMask::everywhere), names, path, strict);
}

std::vector<std::unique_ptr<FileResNode>> makeIconNodes(const std::vector<TypeMask>& masks,
                                                        const std::vector<std::string>& names, const std::string& path,
                                                        bool strict) {
    std::vector<std::unique_ptr<FileResNode>> nodes;
    if (masks.size() != names.size())
        return nodes;
    for (std::size_t index = 0; index < names.size(); ++index) {
        nodes.push_back(makeIconNode(names[index], path, strict));
        nodes.back()->setTypeMask(masks[index]);
    }
    return nodes;
}

SizeRange previewSize(const std::string& name, bool tall) {
    if (name == smallIconName)
        return {510, 345};
    if (name == squareIconName)
        return SizeRange(640);
    return {screenWidth, tall && name != coverName ? tallScreenHeight : screenHeight};
}

bool isProtectedPreview(std::string_view name) {
    return name == coverName || name == smallIconName || name == squareIconName;
}

std::unique_ptr<FileResNode> makePreviewNode(const std::string& name, const std::string& path, bool tall) {
    auto node = std::make_unique<FileResNode>(name);
    node->setPath(path);
    node->setAllowedKinds(fileKind::jpeg);
    node->setMaxBytes(previewMaxBytes);
    node->setSizeRange(previewSize(name, tall));
    return node;
}

} // namespace zdt
