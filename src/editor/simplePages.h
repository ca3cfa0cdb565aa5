#pragma once

#include "editor/colorAndPictureManagerPage.h"

/// The pages of the modules with shared settings.
namespace zdt {

/// What all applications share.
class CSimpleGoblePage : public CColorAndPictureManagerPage {
public:
    CSimpleGoblePage(Workbench& bench, QWidget* parent)
        : CColorAndPictureManagerPage(bench, "commonSetting", parent) {}
};

class CSimpleLauncherPage : public CColorAndPictureManagerPage {
public:
    CSimpleLauncherPage(Workbench& bench, QWidget* parent)
        : CColorAndPictureManagerPage(bench, "launcher", parent) {}
};

class CSimpleContactsPage : public CColorAndPictureManagerPage {
public:
    CSimpleContactsPage(Workbench& bench, QWidget* parent)
        : CColorAndPictureManagerPage(bench, "contacts", parent) {}
};

class CSimpleMmsPage : public CColorAndPictureManagerPage {
public:
    CSimpleMmsPage(Workbench& bench, QWidget* parent)
        : CColorAndPictureManagerPage(bench, "mms", parent) {}
};

class CSimpleSystemPage : public CColorAndPictureManagerPage {
public:
    CSimpleSystemPage(Workbench& bench, QWidget* parent)
        : CColorAndPictureManagerPage(bench, "systemui", parent) {}
};

} // namespace zdt
