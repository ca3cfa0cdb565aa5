#pragma once

#include <QLabel>

namespace zdt {

/// A word or a count on a coloured ground, 20 high. The property `kind` names the ground in the style sheet: `plain`,
/// `generation9`, `generation8`, `generation5`, `absent`, `ok`, `danger`, `count`.
class ZBadge : public QLabel {
    Q_OBJECT

public:
    explicit ZBadge(QWidget* parent = nullptr);
    ZBadge(const QString& text, const QString& kind, QWidget* parent = nullptr);

    void setKind(const QString& kind);
};

/// One line that ends with an ellipsis where the place ends, and then shows itself in full in its tool tip.
class ZElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ZElidedLabel(QWidget* parent = nullptr);
    explicit ZElidedLabel(const QString& text, QWidget* parent = nullptr);

    /// In the middle for file names and paths, otherwise at the end.
    void setElideMode(Qt::TextElideMode mode);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] QString shown() const;

    Qt::TextElideMode _mode = Qt::ElideRight;
};

} // namespace zdt
