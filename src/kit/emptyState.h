#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace zdt {

/// What stands in the middle of a region that has nothing to show: an icon, one line, one sentence and one button, at
/// most 320 wide. Parts without a text are left out. Children: `emptyTitle`, `emptyHint`, `emptyAction`.
class ZEmptyState : public QWidget {
    Q_OBJECT

public:
    explicit ZEmptyState(QWidget* parent = nullptr);

    /// `name` is a name of the icon font, `state` empty or `ok`.
    void setIcon(const QString& name, const QString& state = {});
    void setTexts(const QString& title, const QString& hint, const QString& action = {});

signals:
    void actionClicked();

private:
    QLabel* _icon;
    QLabel* _title;
    QLabel* _hint;
    QPushButton* _action;
};

} // namespace zdt
