#pragma once

#include "editor/exportFields.h"
#include "editor/exportPreviews.h"
#include "kit/fileChoice.h"
#include "kit/page.h"
#include "store/themeResource.h"

#include <cstdint>
#include <functional>
#include <vector>

class QLabel;
class QPushButton;

namespace zdt {

class StateLine;

/// The export page: what a package says of itself, its previews, and the export. The window shows it below its title
/// bar, whose back button calls `close`.
class CResEditOutPutDlg : public ZPage {
    Q_OBJECT

public:
    explicit CResEditOutPutDlg(Workbench& bench, QWidget* parent = nullptr);
    ~CResEditOutPutDlg() override;

    /// How the page ends.
    static constexpr int ended = 1;
    static constexpr int closed = 2;

    /// Fills the form from the open theme and draws the previews anew. To be called each time the page is shown, and
    /// when another theme was opened under it; a change of language keeps what was typed.
    void open();
    /// Ends the page with `closed`, behind `previewsChanged` if they have. What was typed is dropped.
    void close();

    /// Hears also `Add_Multi_Wallpaper_Notify`, which draws the previews anew; `Replace_Picture_Notify`, whose lParam
    /// points to a `const QStringList` of a preview's name and the picture's path; and `Notify_Drag_File`, whose lParam
    /// points to a `const QStringList` of paths. The two are sent synchronously. On `Notify_ChangeTheme` it lets go of
    /// what was begun for the theme before.
    void Notify(const Notification& message) override;

    FileChoice folderChoice{QStandardPaths::DocumentsLocation};
    /// For tests to answer.
    std::function<void(const QString& folder)> showFolder;
    [[nodiscard]] ExportPreviews& previews() { return _previews; }

signals:
    /// `ended` after a package was written, and after the check of the theme's files failed; else `closed`.
    void done(int result);
    /// The values were stored, and then the author chose to write no package, or it couldn't be written; or the theme
    /// was moved to another generation, and then the values couldn't be stored. The page stays.
    void valuesStored();
    /// The page is left, and the theme has other previews than when it was opened.
    void previewsChanged();

protected:
    void reload() override;
    void hideEvent(QHideEvent* event) override;

private:
    /// What came of an attempt to write the package.
    enum class Outcome { written, incomplete, stopped };

    void tryExport();
    [[nodiscard]] bool isFormRight();
    /// False if the theme is open no more.
    [[nodiscard]] bool finishPreviews();
    [[nodiscard]] bool storeValues();
    [[nodiscard]] QString askFolder();
    [[nodiscard]] Outcome writePackage();
    [[nodiscard]] Outcome checkAndWrite(const QString& path);
    /// Each box and each chooser may outlast the theme that is exported.
    [[nodiscard]] bool isThemeOpen() const { return theme() && bench().themeSerial() == _exported; }
    [[nodiscard]] bool mayWriteTo(const QString& path);
    [[nodiscard]] bool runExport(const std::string& path);
    void tellSuccess(const QString& path);
    void warn(const QString& key);
    void countProblems();
    void sayFoot();

    ExportFields _fields;
    ExportPreviews _previews;
    QLabel& _size;
    StateLine& _openPoints;
    QPushButton& _ok;
    std::uint64_t _exported = 0; ///< The serial of the theme.
    quint64 _bytes = 0;
    int _problems = 0;
    bool _isExporting = false;
};

} // namespace zdt
