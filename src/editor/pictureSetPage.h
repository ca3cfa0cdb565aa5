#pragma once

#include "editor/pictureSet.h"

namespace zdt {

/// The pictures of a screen as a list of rows. The list is its child `pictureList`.
class CPictureSetPage : public PictureSet {
    Q_OBJECT

public:
    explicit CPictureSetPage(QWidget* parent = nullptr);
};

} // namespace zdt
