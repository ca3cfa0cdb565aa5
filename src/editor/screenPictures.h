#pragma once

#include "editor/pictureEntry.h"

#include <QWidget>

#include <array>
#include <string>
#include <vector>

class QLabel;
class QPushButton;
class QStackedWidget;

namespace zdt {

class CPaintManagerUI;
class CPictrueArrySetPage;
class CPictureSetPage;
class PictureSet;

/// The tab of a screen's pictures: the list or the grid of them, and below it the upload of many at once.
class ScreenPictures : public QWidget {
    Q_OBJECT

public:
    /// @param module and screen, by which the controls are named
    ScreenPictures(const QString& module, const QString& screen, CPaintManagerUI& notifications, QWidget* parent);
    ~ScreenPictures() override;

    /// The list and the grid, of which one is seen.
    [[nodiscard]] std::array<PictureSet*, 2> sets() const;
    void setGroups(const std::vector<PictureGroup>& groups);
    void updateEntry(const PictureEntry& entry);
    void setFilter(const QString& text, bool changedOnly);
    /// By "<sub-module>/<name>".
    [[nodiscard]] bool has(const std::string& key) const;
    void showPicture(const QString& key);
    [[nodiscard]] int count() const;
    /// Shows the grid or the list.
    void setGrid(bool isGrid);
    /// Says all again in the language of the moment.
    void retell();

private:
    QPushButton* makeButton(const QString& name);

    QStackedWidget* _stack;
    CPictureSetPage* _list;
    CPictrueArrySetPage* _grid;
    QPushButton* _many;
    QPushButton* _how;
    QLabel* _hint;
};

/// The names of the buttons below a screen's pictures.
namespace pictureControl {
inline constexpr const char* uploadMany = "Btn_Upload_Mulite_Files";
inline constexpr const char* tellHow = "Btn_Upload_Mulite_File_Msg";
} // namespace pictureControl

} // namespace zdt
