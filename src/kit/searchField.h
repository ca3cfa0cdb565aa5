#pragma once

#include <QLineEdit>

namespace zdt {

/// A field with a magnifying glass, and a cross that empties it once something stands in it; Escape empties it too.
class ZSearchField : public QLineEdit {
    Q_OBJECT

public:
    explicit ZSearchField(QWidget* parent = nullptr);

    /// What the cross is called to a screen reader and in its tip.
    void setClearTip(const QString& tip);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QAction* _clear;
};

} // namespace zdt
