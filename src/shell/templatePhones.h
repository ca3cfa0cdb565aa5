#pragma once

#include "kit/thumbnails.h"

#include <QWidget>

namespace zdt {

/// Three phones that show what the newest template looks like, for a page with nothing of the author's own on it.
/// Without templates it stays empty.
class CTemplatePhones : public QWidget {
    Q_OBJECT

public:
    explicit CTemplatePhones(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override { return {512, 488}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Thumbnails _screens;
};

} // namespace zdt
