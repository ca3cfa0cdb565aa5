#pragma once

#include "kit/baseDialog.h"
#include "kit/workbench.h"
#include "shell/themeList.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QTimer;

namespace zdt {

class ZOptionCard;

/// What an author asks for.
struct ThemeWish {
    std::string name;        ///< Free, and allowed by `checkThemeName`.
    std::string chineseName; ///< Empty if none was given.
    unsigned generation = 0; ///< Its index.
    bool small = false;
};

/// Asks for the names of a new theme, its generation and how much it covers. The names are checked as they are typed.
class CNewThemeDialog : public ZBaseDialog {
    Q_OBJECT

public:
    /// @param taken the names of the themes that there are
    /// @throws LayoutError if the layout can't be loaded or lacks a control
    CNewThemeDialog(Workbench& bench, std::vector<std::string> taken, QWidget* parent);

    /// What stands in the dialog, blanks at the names' ends left out.
    [[nodiscard]] ThemeWish chosen() const;

    /// Shows the dialog and waits; nothing if it was cancelled.
    /// @throws LayoutError as the constructor
    [[nodiscard]] static std::optional<ThemeWish> ask(Workbench& bench, const std::vector<std::string>& taken,
                                                      QWidget* parent);

private:
    /// A field with what is said of it below.
    struct Field {
        QLineEdit* edit = nullptr;
        QLabel* sign = nullptr;
        QLabel* words = nullptr;
        QAction* fine = nullptr;
        QTimer* soon = nullptr;
    };
    enum class Says { hint, fine, error };

    void makeFields();
    [[nodiscard]] Field makeField(const char* edit, const char* sign, const char* words);
    void makeCards(const std::string& root);
    void makeButtons();
    static void say(const Field& field, Says how, const QString& key);
    bool checkName();
    bool checkChinese();
    void create();

    std::vector<std::string> _taken;
    Field _name;
    Field _chinese;
    std::array<ZOptionCard*, generationCount> _generations{};
    ZOptionCard* _small = nullptr;
};

} // namespace zdt
