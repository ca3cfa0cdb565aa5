#pragma once

#include "canvas/placeStack.h"
#include "canvas/screenImage.h"

#include <QVariantAnimation>
#include <QWidget>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zdt {

class PreviewComposition;

/// A composed preview, scaled to the widget. A click on it picks the key of what lies there; the same place clicked
/// again picks what lies below. Places can be outlined, and pulse to be found.
///
/// While it inspects, the place under the pointer is outlined, and the keyboard walks from key to key: the arrows, Home
/// and End move, Enter and Space pick. Other buttons than the left one and the wheel are left to its parent.
class CDrawPictrue : public QWidget {
    Q_OBJECT

public:
    explicit CDrawPictrue(QWidget* parent = nullptr);
    ~CDrawPictrue() override;

    /// Shows a composition, or none. Outlines are gone; of the one that was shown last the scaled image stays.
    void setComposition(std::shared_ptr<PreviewComposition> composition);
    [[nodiscard]] const std::shared_ptr<PreviewComposition>& composition() const { return _composition; }
    /// To be called after the composition was changed: draws what is different. Outlines of another list of parts are
    /// gone.
    void refresh();

    /// Of the corners, logical pixels.
    void setRadius(int radius);

    /// Outlines these parts until others are given.
    void setOutlined(std::vector<std::size_t> parts);
    [[nodiscard]] const std::vector<std::size_t>& outlined() const { return _outlined; }
    /// Outlines parts for a moment: they fade in and out twice, or stand still if the system asks for less motion.
    void pulseParts(std::vector<std::size_t> parts);
    [[nodiscard]] bool isPulsing() const { return _pulse.state() == QAbstractAnimation::Running; }

    void setInspecting(bool isInspecting);
    [[nodiscard]] bool isInspecting() const { return _isInspecting; }

    /// The place that an outline of the part encloses, in the widget; empty for a part that isn't seen.
    [[nodiscard]] QRect placeOf(std::size_t part) const;
    /// The point of the frame under a point of the widget.
    [[nodiscard]] QPoint toFrame(const QPoint& point) const;

    /// Writes the whole frame as a JPEG; quality from 0 to 100. False without a composition or if it can't be written.
    [[nodiscard]] bool savePreview(const std::string& path, int quality);

signals:
    /// While it inspects: the pointer or the keyboard came to a place.
    void pointed(const QString& key, const QRect& place);
    void unpointed();
    /// The keyboard is about to point at this place of the widget.
    void walked(const QRect& place);
    void picked(const QString& key);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void updatePlaces(const std::vector<std::size_t>& parts);
    void dropOutlines();
    void paintOutline(QPainter& painter, std::size_t part, double strength) const;
    void paintRing(QPainter& painter) const;
    void point(std::optional<std::size_t> part);
    void walkTo(int key);
    void stopWalking();
    void pickPart(std::optional<std::size_t> part);
    [[nodiscard]] QRegion follow();
    [[nodiscard]] bool showsRing() const;

    std::shared_ptr<PreviewComposition> _composition;
    std::weak_ptr<PreviewComposition> _scaled; ///< Whose image the screen holds.
    std::uint64_t _listSerial = 0;             ///< Of the list that the indices below belong to.
    ScreenImage _screen;
    PlaceStack _stack;
    QVariantAnimation _pulse;
    std::vector<std::size_t> _outlined;
    std::vector<std::size_t> _pulsing;
    std::optional<std::size_t> _pointed;
    std::optional<QPoint> _press;
    int _radius = 0;
    bool _isInspecting = false;
    bool _isWalking = false; ///< What is pointed at was reached by keys.
};

} // namespace zdt
