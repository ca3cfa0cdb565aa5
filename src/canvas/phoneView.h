#pragma once

#include <QPixmap>
#include <QPoint>
#include <QWidget>

#include <optional>

namespace zdt {

class CDrawPictrue;

/// A phone in the middle of the place that there is, its screen a composed preview. It fits the place, times a zoom in
/// per cent; one that is larger is moved by the wheel or dragged with the middle button, and where
/// the keyboard walks over its screen. Ctrl and the wheel zoom about the pointer.
class ZPhoneView : public QWidget {
    Q_OBJECT

public:
    explicit ZPhoneView(QWidget* parent = nullptr);

    static constexpr int minZoom = 50;
    static constexpr int maxZoom = 200;
    static constexpr int fitZoom = 100;

    /// The screen.
    [[nodiscard]] CDrawPictrue& picture() const { return *_picture; }
    /// Where the phone lies, its bezel included.
    [[nodiscard]] QRect phonePlace() const;

    /// Per cent of the size that fits.
    [[nodiscard]] int zoom() const { return _zoom; }
    /// Held to 50 to 200; what is in the middle stays there.
    void setZoom(int percent);
    void zoomIn();
    void zoomOut();
    void zoomToFit() { setZoom(fitZoom); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void zoomChanged(int percent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] QSize screenSize() const;
    [[nodiscard]] bool canPan() const;
    void zoomAbout(const QPointF& point, int percent);
    void moveTo(const QPoint& place);
    void bringIntoView(const QRect& place);
    void drawBody();

    CDrawPictrue* _picture;
    int _zoom = fitZoom;
    double _wheelZoom = fitZoom; ///< The zoom with the fractions that a touchpad's steps add up.
    QPoint _screenPlace;         ///< The top left of the screen.
    QPixmap _body;               ///< The bezel with its shadow around it; null if it must be drawn.
    std::optional<QPoint> _grip;
};

} // namespace zdt
