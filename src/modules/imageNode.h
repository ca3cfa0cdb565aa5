#pragma once

#include "model/resNode.h"
#include "modules/tables/pictureRow.h"

#include <span>
#include <string>

namespace zdt {

class FileResNode;

/// A node whose children are the pictures of one application. Each takes over its file if the theme has one.
class ImageNode : public ResNode {
protected:
    /// @param parent the node of the application, or its common block
    /// @param mask the kinds of theme for the pictures that every generation has
    /// @param package the directory under which the rows' directories lie
    ImageNode(ResNode* parent, TypeMask mask, std::string name, const std::string& package);

    void addPictures(std::span<const tables::PictureRow> rows, const std::string& package);
};

/// Appends the picture of a row to `parent`, with the mask `mask` less the generations that lack it.
FileResNode& addPicture(ResNode& parent, TypeMask mask, const tables::PictureRow& row, const std::string& package);

/// Lets each child that stands for a file take over the file that the theme has.
void loadChildrenFromTheme(ResNode& node);

class ImageLancherNode : public ImageNode {
public:
    explicit ImageLancherNode(ResNode* parent);
};

class ImageContactsNode : public ImageNode {
public:
    explicit ImageContactsNode(ResNode* parent);
};

class ImagePhoneNode : public ImageNode {
public:
    explicit ImagePhoneNode(ResNode* parent);
};

/// Named "telecom_image". Its pictures stand below a grouping node for each direction of writing.
class ImageTelecomNode : public ImageNode {
public:
    explicit ImageTelecomNode(ResNode* parent);
};

class ImageMmsNode : public ImageNode {
public:
    explicit ImageMmsNode(ResNode* parent);
};

class ImageSystemuiNode : public ImageNode {
public:
    explicit ImageSystemuiNode(ResNode* parent);
};

/// The pictures of the shared widgets, of which every application has its own.
class ImageCommonSettingNode : public ImageNode {
public:
    explicit ImageCommonSettingNode(ResNode* parent);
};

} // namespace zdt
