#include "modules/imageNode.h"

#include "model/fileResNode.h"
#include "modules/tables/pictures.h"
#include "support/assertion.h"
#include "support/files.h"

namespace zdt {

namespace {

constexpr const char* blockName = "image";
constexpr TypeMask telecomMask = typeMask::bigOnly & ~typeMask::generation9;

} // namespace

FileResNode& addPicture(ResNode& parent, TypeMask mask, const tables::PictureRow& row, const std::string& package) {
    auto picture = std::make_unique<FileResNode>(mask & ~row.absentFrom, std::string(row.name));
    picture->setAllowedKinds(fileKind::png);
    picture->setPath(package + std::string(row.directory));
    if (row.side != tables::anySize)
        picture->setSizeRange(SizeRange(row.side));
    return parent.adopt(std::move(picture));
}

void loadChildrenFromTheme(ResNode& node) {
    for (ResNode* child = node.firstChild(); child; child = child->next()) {
        if (auto* file = dynamic_cast<FileResNode*>(child))
            file->loadFromTheme();
    }
}

ImageNode::ImageNode(ResNode* parent, TypeMask mask, std::string name, const std::string& package)
    : ResNode(parent, mask, std::move(name)) {
    setPath(package + std::string(tables::xxhdpi));
}

void ImageNode::addPictures(std::span<const tables::PictureRow> rows, const std::string& package) {
    for (const tables::PictureRow& row : rows)
        addPicture(*this, typeMask(), row, package);
    loadChildrenFromTheme(*this);
}

ImageLancherNode::ImageLancherNode(ResNode* parent)
    : ImageNode(parent, typeMask::everywhere, blockName, parent->path()) {
    addPictures(tables::launcherPictures, parent->path());
}

ImageContactsNode::ImageContactsNode(ResNode* parent)
    : ImageNode(parent, typeMask::bigOnly, blockName, parent->path()) {
    addPictures(tables::contactsPictures, parent->path());
}

ImagePhoneNode::ImagePhoneNode(ResNode* parent)
    : ImageNode(parent, typeMask::bigOnly, blockName, parent->path()) {
    addPictures(tables::phonePictures, parent->path());
}

ImageTelecomNode::ImageTelecomNode(ResNode* parent)
    : ImageNode(parent, telecomMask, "telecom_image", parent->path()) {
    setPath(parent->path()); // Its pictures lie in a directory of each group.
    for (const tables::PictureRow& row : {tables::telecomPicture, tables::mirroredTelecomPicture}) {
        const std::string directory = parent->path() + std::string(row.directory);
        auto& group = emplaceChild<ResNode>(telecomMask, fileName(parentPath(directory)));
        group.setPath(directory);
        addPicture(group, telecomMask, row, parent->path());
        loadChildrenFromTheme(group);
    }
}

ImageMmsNode::ImageMmsNode(ResNode* parent)
    : ImageNode(parent, typeMask::bigOnly, blockName, parent->path()) {
    addPictures(tables::mmsPictures, parent->path());
}

ImageSystemuiNode::ImageSystemuiNode(ResNode* parent)
    : ImageNode(parent, typeMask::bigOnly, blockName, parent->path()) {
    addPictures(tables::systemuiPictures, parent->path());
}

ImageCommonSettingNode::ImageCommonSettingNode(ResNode* parent)
    : ImageNode(parent, typeMask::bigOnly, blockName, parent->path()) {
    const std::string path = parent->path();
    ZDT_ASSERT(!path.empty(), "imageCommonSettingNode");
    addPictures(tables::commonSettingPictures, path);
}

} // namespace zdt
