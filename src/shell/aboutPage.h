#pragma once

#include "kit/page.h"

class QLabel;

namespace zdt {

/// What the program is, where its themes lie, and what it is made of.
class CAboutPage : public ZPage {
    Q_OBJECT

public:
    CAboutPage(Workbench& bench, QWidget* parent);

signals:
    void themesRequested();
    void folderRequested();

protected:
    void reload() override;

private:
    QLabel& _tool;
};

} // namespace zdt
