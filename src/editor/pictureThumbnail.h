#pragma once

#include "kit/thumbnails.h"

#include <QImage>
#include <QWidget>

#include <optional>
#include <string>

namespace zdt {

/// A square with a picture in its middle on a checkerboard, or a sign for one that can't be shown.
class PictureThumbnail : public QWidget {
    Q_OBJECT

public:
    /// @param side logical pixels
    PictureThumbnail(int side, QWidget* parent);

    /// Shows what the thumbnails have of a file; empty while it is being made.
    void show(Thumbnails& thumbnails, const std::string& file);
    /// Whether the border warns.
    void setAlarmed(bool alarmed);

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::optional<QImage> _picture;
    bool _isAlarmed = false;
};

} // namespace zdt
