#pragma once

#include <QPixmap>
#include <QWidget>

#include <array>

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
    void showEvent(QShowEvent* event) override;

private:
    /// Left, right and, in front of both, middle.
    std::array<QPixmap, 3> _screens;
    bool _loaded = false;
};

} // namespace zdt
