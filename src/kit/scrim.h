#pragma once

#include <QPointer>
#include <QWidget>

namespace zdt {

class ZBaseDialog;

/// The dimmed ground of a dialog in its window: covers everything below the title bar, keeps clicks, keys, shortcuts
/// and drops from what lies under it, draws the dialog's shadow and keeps the dialog in view.
class Scrim : public QWidget {
    Q_OBJECT

public:
    Scrim(QWidget* window, ZBaseDialog* dialog);
    /// A window that goes away under an open dialog refuses what it asked.
    ~Scrim() override;

    /// Puts the dialog into the middle and fades it in, or shows it at once if the system asks for less motion.
    void present();
    /// The place nearest to `wished` at which the whole dialog is seen, or its top left corner if it can't be.
    [[nodiscard]] QPoint fitted(const QPoint& wished) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;

private:
    void cover();
    void fade();
    void fitDialog();
    [[nodiscard]] bool isOutside(QObject* watched) const;
    [[nodiscard]] bool isTop() const;

    QPointer<ZBaseDialog> _dialog;
};

} // namespace zdt
