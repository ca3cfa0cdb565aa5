#pragma once

#include "canvas/animationRun.h"
#include "canvas/backgroundModes.h"
#include "canvas/canvasGeometry.h"
#include "canvas/canvasHand.h"
#include "canvas/drawItem.h"
#include "canvas/placementRules.h"
#include "canvas/previewFrame.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>

namespace zdt {

class CPaintManagerUI;
class GroupParts;

/// The screen of a phone on which an author places things. Items are selected, moved and resized by mouse, moved by
/// the arrow keys (1 pixel, with Shift 10), and selected by Space and Shift with it; Escape takes back a drag. A place
/// that isn't allowed is told and not kept.
///
/// What the author did is told by notifications, all of them queued; the first argument of those about an item is its
/// `id`.
class CDrawPreview : public QWidget {
    Q_OBJECT

public:
    explicit CDrawPreview(QWidget* parent = nullptr);
    ~CDrawPreview() override;

    /// Where notifications are sent; none are before. It must outlive the canvas.
    void setNotifications(CPaintManagerUI* hub) { _hub = hub; }
    /// Which parts follow an item that is a group; none without. They must outlive the canvas.
    void setGroupParts(GroupParts* parts) { _groupParts = parts; }

    // The phone.

    void set1920Height() { setDesignHeight(DesignSpace::lowHeight); }
    void set2160Height() { setDesignHeight(DesignSpace::highHeight); }
    /// @param isMode2 whether the theme is of the generation with the high screen
    void setMode2(bool isMode2);
    [[nodiscard]] const DesignSpace& space() const { return _space; }
    /// A picture that can't be read leaves the screen white.
    void setBackgroundPicture(const std::string& path);
    void setBackgroundModes(const BackgroundModes& modes);
    /// The part of the background that fills the screen; nothing to let its size decide.
    void setBackgroundRect(const std::optional<EdgeRect>& source);

    // The items. Those of the list are in the order of painting.

    /// One of the same name stays, but `findItem` gives the one that came last.
    CDrawItem& addItem(std::unique_ptr<CDrawItem> item);
    /// Frees an item and notes its name as deleted. Ends what plays, which the owner is told.
    void removeItem(CDrawItem& item);
    /// Frees all, and forgets the deleted names. Ends what plays, which the owner is told.
    void removeAllItems();
    [[nodiscard]] const DrawItems& items() const { return _items; }
    /// Null if there is none.
    [[nodiscard]] CDrawItem* findItem(const QString& name) const;
    [[nodiscard]] CDrawItem* findItem(std::intptr_t id) const;
    /// Empty if there is none.
    [[nodiscard]] QString nameOf(std::intptr_t id) const;
    [[nodiscard]] const QStringList& deletedNames() const { return _deletedNames; }
    /// To be called after an item was changed.
    void refresh();

    // Selection. Those made by the hand and by keys are told; those made by a call aren't.

    /// Null for none; one of the canvas's own items. Ends a drag.
    void setSelectedItem(CDrawItem* item);
    [[nodiscard]] CDrawItem* selectedItem() const { return _selected; }
    void enableSelectionNotification(bool enable) { _notifySelect = enable; }
    /// Whether the hot area counts; it does from the start.
    void enableHotAreas(bool enable) { _enableHot = enable; }

    // Places.

    /// Gives the selected item a place, and the parts of a group with it. A place that isn't allowed is told, and the
    /// item stays where it was; false then and without a selected item. For what an author enters.
    bool placeSelected(const EdgeRect& rect);
    /// What is wrong with a place for an item. Tells nothing.
    [[nodiscard]] PlacementFault CheckPlacement(const CDrawItem& item, const EdgeRect& rect) const;
    /// Whether a new element may lie there: on the screen, clear of the unlock control, and overlapping none that is
    /// `safeAreaChecked`, the selected one excepted. Tells nothing.
    [[nodiscard]] PlacementFault CheckRect(const EdgeRect& rect) const;
    /// The same for an element that stands on the canvas, by its `listOrder`, which then doesn't count itself.
    [[nodiscard]] PlacementFault CheckRect(const EdgeRect& rect, int withoutListOrder) const;

    // Pictures of the whole.

    /// Lets a notification with `captureKind` follow the next paint, or come at once where none will follow: by kind
    /// 3 or 4 that of the video lock, otherwise that of the designed one. Each kind that was requested is told once.
    void requestCapture(int captureKind);
    /// The canvas at the phone's own size, without the marks of the selection and without areas.
    [[nodiscard]] QImage composed() const;
    /// Writes it; quality from 0 to 100.
    [[nodiscard]] bool saveJpeg(const std::string& path, int quality) const;

    // Animations. Nothing can be selected or moved while they play. When all is over, the items lie and look again as
    // the author placed them, wherever the animations took them.

    /// @param owner the control that `Notify_Pendatn_Play_Stop_Msg` names when all is over; the canvas if null
    void startAnimation(QObject* owner = nullptr);
    /// Sends nothing.
    void stopAnimation();
    [[nodiscard]] bool isPlaying() const { return _run.isPlaying(); }

    // The hand.

    [[nodiscard]] HandState handState() const { return _hand.state(); }
    /// What a press at a point of the control would do.
    [[nodiscard]] PressEffect pressEffect(const QPoint& point) const;
    /// The phone's screen in the control, which keeps its proportions.
    [[nodiscard]] QRect screenRect() const { return screenIn(size(), _space); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void setDesignHeight(int height);
    void orderItems();
    [[nodiscard]] PlacementFault checkNew(const EdgeRect& rect, const auto& isLeftOut) const;
    [[nodiscard]] PreviewScene scene() const;
    void send(const char* name, const CDrawItem& item);
    void sendCaptures();
    [[nodiscard]] ItemAnimations animations() const;
    void passAnimations();
    /// Stops what plays and tells its owner; nothing if nothing plays.
    void endAnimation();

    [[nodiscard]] CDrawItem* itemUnder(const QPoint& designPoint) const;
    void selectByHand(CDrawItem& item);
    void dragTo(const QPoint& point);
    /// Lets go, and puts what followed the hand back where it was.
    void cancelDrag();
    void moveByKeys(const QPoint& way);
    void selectNext(bool backwards);
    void showCursor(const QPoint& point);

    /// Looks at the place of the selected item, which lay at `_restore` before: puts it back there and tells why, or
    /// keeps it and lets the parts of its group follow.
    bool keepPlace();
    [[nodiscard]] bool keepParts();
    void refuse(const char* messageKey);
    void refuseDrag();
    void tell(const char* messageKey);
    void showTold();

    DesignSpace _space;
    QImage _background;
    BackgroundModes _modes;
    DrawItems _items;
    QStringList _deletedNames;
    CDrawItem* _selected = nullptr;
    ItemPlaces _restore; ///< Of the selected item, before it was dragged.
    CanvasHand _hand;
    PreviewFrame _frame;

    CPaintManagerUI* _hub = nullptr;
    GroupParts* _groupParts = nullptr;
    QPointer<QObject> _playOwner;
    bool _notifySelect = false;
    bool _enableHot = true;
    const char* _told = nullptr; ///< The key of what a box tells now or in a moment; null for none.
    std::set<int> _captureKinds; ///< Requested for the next paint.

    AnimationRun _run;
    QTimer _passes;
    QElapsedTimer _clock;
};

} // namespace zdt
