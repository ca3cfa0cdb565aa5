#pragma once

#include "kit/cellSource.h"
#include "kit/thumbnails.h"

#include <QString>
#include <QWidget>

#include <string>
#include <vector>

class QLabel;
class QPushButton;

namespace zdt {

class PictureThumbnail;

/// The endings of the controls' names in a strip of pictures. In front of them stand the strip's key, and for a
/// picture's its number from 0.
inline constexpr const char* itemAddEnding = "_ITEM_BTN_ADD";
inline constexpr const char* itemDeleteEnding = "_ITEM_BTN_DEL";
inline constexpr const char* itemReplaceEnding = "_ITEM_BTN_REP";
inline constexpr const char* itemCheckEnding = "_ITEM_BTN_CHECK";

/// A picture of a strip, its number, and its buttons.
class CPictureViewCell : public QWidget {
    Q_OBJECT

public:
    static constexpr int width = 96;
    static constexpr int height = 132;

    explicit CPictureViewCell(QWidget* parent);

    void fill(const QString& key, int number, const std::string& file, Thumbnails& thumbnails);
    void setState(const CellState& state);

signals:
    void checkClicked();
    void replaceClicked();
    void deleteClicked();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPushButton* makeButton(const QString& icon);

    PictureThumbnail* _thumbnail;
    QLabel* _number;
    QPushButton* _check;
    QPushButton* _replace;
    QPushButton* _delete;
    CellState _state;
};

/// The pictures of a strip, and behind them the place for more while there is room.
class CPictureViewDataSource : public ZFlowViewDataSource {
    Q_OBJECT

public:
    CPictureViewDataSource(QString key, QObject* parent);

    void show(const std::vector<std::string>& files, bool hasRoom);
    /// Whether the index is the place for more.
    [[nodiscard]] bool isAdding(int index) const { return index == static_cast<int>(_files.size()); }

    [[nodiscard]] int count() const override { return static_cast<int>(_files.size()) + (_hasRoom ? 1 : 0); }
    [[nodiscard]] QWidget* makeCell(int kind, QWidget* parent) override;
    void fillCell(QWidget* cell, int index) override;
    void showState(QWidget* cell, int index, const CellState& state) override;
    [[nodiscard]] QString accessibleName(int index) const override;
    [[nodiscard]] int kindOf(int index) const override { return isAdding(index) ? 1 : 0; }
    [[nodiscard]] QSize cellSize() const override { return {CPictureViewCell::width, CPictureViewCell::height}; }
    [[nodiscard]] int gap() const override { return 8; }

signals:
    void addClicked();
    void checkClicked(int index);
    void replaceClicked(int index);
    void deleteClicked(int index);

private:
    QString _key;
    std::vector<std::string> _files;
    bool _hasRoom = true;
    Thumbnails _thumbnails;
};

} // namespace zdt
