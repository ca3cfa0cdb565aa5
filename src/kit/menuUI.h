#pragma once

#include <QMenu>

namespace zdt {

enum class Icon : char16_t;

/// A menu with rows of 32: icon, text and shortcut, with the corners of a card.
class ZMenuUI : public QMenu {
    Q_OBJECT

public:
    explicit ZMenuUI(QWidget* parent = nullptr);

    /// Adds a row; `danger` marks what removes something.
    QAction* addRow(Icon which, const QString& text, bool danger = false);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void paintRow(QPainter& painter, const QAction& action, const QRect& row) const;
};

} // namespace zdt
