#pragma once

#include "canvas/animationRun.h"
#include "canvas/canvasGeometry.h"
#include "canvas/placementRules.h"
#include "lockscreen/lockDesign.h"

#include <QImage>
#include <QRgb>
#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace zdt {

class ItemPainter;
struct OrderFlags;

enum class ItemTextAlign { left, center, right };

/// How the text of an item looks.
struct ItemTextStyle {
    QString font = "Arial";
    int size = 42; ///< Height in pixels of the design space.
    QRgb color = 0xff3e3e3e;
    ItemTextAlign align = ItemTextAlign::left;
};

/// Where an item and what it holds lay, to put them back.
struct ItemPlaces {
    EdgeRect rect;
    std::vector<ItemPlaces> parts;
};

/// The rectangle around all of them.
[[nodiscard]] EdgeRect boundsOf(const ItemPlaces& places);

/// What lies on the canvas: a picture, or a text if it has one. Places are pixels of the design space. Whoever changes
/// an item that is on a canvas calls the canvas's `refresh` afterwards.
class CDrawItem {
public:
    explicit CDrawItem(QString itemName);
    virtual ~CDrawItem();
    CDrawItem(const CDrawItem&) = delete;
    CDrawItem& operator=(const CDrawItem&) = delete;

    /// Gives the item another place; whatever the numbers, within a million pixels of the corner.
    virtual void SetRect(const EdgeRect& rect);
    virtual void Move(int dx, int dy);
    /// Draws the item without the marks of a selection.
    /// @param playing whether its animations show
    virtual void Draw(ItemPainter& painter, bool playing) const;

    [[nodiscard]] virtual ItemPlaces places() const;
    virtual void setPlaces(const ItemPlaces& places);
    /// The animations of the item and of what it holds.
    [[nodiscard]] virtual ItemAnimations allAnimations() const;

    /// Loads the picture, and takes its size unless `keepSize` is set. False if it can't be read; the item has none
    /// then. What is larger than two screens is kept smaller.
    bool setPicture(const std::string& path);
    void setPicture(const QImage& picture);

    [[nodiscard]] const QString& name() const { return _name; }
    /// Another number for each item that is ever made, above 0. Notifications name items by it, as they may come when
    /// the item is gone.
    [[nodiscard]] std::intptr_t id() const { return _id; }
    [[nodiscard]] const EdgeRect& rect() const { return _rect; }
    [[nodiscard]] const QImage& picture() const { return _picture; }

    /// Whether a hand can resize it.
    [[nodiscard]] bool canResize() const { return !locked && !fixedSize && !placement.fixedHorizontal; }
    [[nodiscard]] OrderFlags orderFlags() const;

    QString text; ///< Drawn in place of a picture; empty for none.
    ItemTextStyle textStyle;
    int imageWidth = 0;
    int imageHeight = 0;
    bool keepSize = false; ///< `imageWidth` and `imageHeight` are the page's, whatever the picture says.

    PlacementFlags placement;
    bool locked = false;      ///< A press on it does nothing.
    bool dragRefused = false; ///< It can be selected and not be moved here.
    bool ratioLocked = false;
    float ratio = 0; ///< Height by width for a locked ratio; the rectangle's own for 0.
    bool fixedSize = false;

    int layer = 0;      ///< `topLayer` stays above the others.
    int listOrder = -1; ///< The position that the item asks for; -1 for none.
    bool isBackdrop = false;
    bool isArea = false; ///< Shows an area of the screen, and is no part of a capture.
    bool alwaysLast = false;

    QRgb outlineColor = 0xff2c95ff;
    QRgb handleColor = 0xffffffff;
    std::int32_t fillColor = 0; ///< ARGB; 0 or less for no fill.
    bool noFill = false;

    bool isVideoLayer = false; ///< Its selection has a notification of its own.
    bool isGroup = false;      ///< The children of its element follow it.
    ElementPath element;       ///< Its element in the lock screen's document; empty for none.

protected:
    /// The picture or text, without a fill.
    void drawContent(ItemPainter& painter, const QImage& picture) const;

private:
    QString _name;
    std::intptr_t _id;
    EdgeRect _rect;
    QImage _picture;
};

/// An item that may be animated.
class CDrawPendant : public CDrawItem {
public:
    using CDrawItem::CDrawItem;
    void Draw(ItemPainter& painter, bool playing) const override;
    [[nodiscard]] ItemAnimations allAnimations() const override;

    std::vector<std::unique_ptr<ItemAnimation>> animations; ///< May change while they play.
};

/// An item that holds others, which lie in it, are drawn behind each other over its frame picture, and follow it.
class CDrawContainer : public CDrawItem {
public:
    using CDrawItem::CDrawItem;
    void SetRect(const EdgeRect& rect) override;
    void Move(int dx, int dy) override;
    void Draw(ItemPainter& painter, bool playing) const override;
    [[nodiscard]] ItemPlaces places() const override;
    void setPlaces(const ItemPlaces& places) override;
    [[nodiscard]] ItemAnimations allAnimations() const override;

    std::vector<std::unique_ptr<CDrawItem>> children;
    QImage framePicture; ///< Drawn over the whole rectangle; null for none.
};

} // namespace zdt
