#pragma once

#include <QStringList>
#include <QWidget>

class QButtonGroup;
class QHBoxLayout;

namespace zdt {

/// A few choices side by side of which exactly one holds. 32 high, or 28. The arrow keys go from one to the next.
class ZSegmented : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QStringList labels READ labels WRITE setLabels)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentChanged)

public:
    explicit ZSegmented(QWidget* parent = nullptr);

    [[nodiscard]] QStringList labels() const;
    /// Keeps the choice when there is still one at its place, and says nothing then.
    void setLabels(const QStringList& labels);

    /// From 0; -1 without labels.
    [[nodiscard]] int currentIndex() const;
    /// Leaves the choice as it is for an index that isn't there.
    void setCurrentIndex(int index);

signals:
    void currentChanged(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void add(const QString& label, int index);

    QHBoxLayout* _row;
    QButtonGroup* _group;
};

} // namespace zdt
