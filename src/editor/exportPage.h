#pragma once

#include "editor/exportFields.h"
#include "editor/exportPreviews.h"
#include "editor/fileChoice.h"
#include "kit/page.h"
#include "store/themeResource.h"

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
    /// Ends the page with `closed`. What was typed is dropped.
    void close();

    /// Hears also `Add_Multi_Wallpaper_Notify`, which draws the previews anew; `Replace_Picture_Notify`, whose lParam
    /// points to a `const QStringList` of a preview's name and the picture's path; and `Notify_Drag_File`, whose lParam
    /// points to a `const QStringList` of paths. The two are sent synchronously.
    void Notify(const Notification& message) override;

    /// What asks, and what shows a folder; for tests to answer.
    ChoosePath chooseFolder = zdt::chooseFolder;
    std::function<void(const QString& folder)> showFolder;
    [[nodiscard]] ExportPreviews& previews() { return _previews; }

signals:
    /// `ended` after a package was written, and after the check of the theme's files failed; else `closed`.
    void done(int result);
    /// The values were stored, and then the author chose to write no package, or it couldn't be written. The page
    /// stays.
    void valuesStored();

protected:
    void reload() override;

private:
    /// What came of an attempt to write the package.
    enum class Outcome { written, incomplete, stopped };

    void tryExport();
    [[nodiscard]] bool isFormRight();
    [[nodiscard]] bool storeValues();
    [[nodiscard]] Outcome writePackage();
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
    QString _folder; ///< The last one that was chosen.
    quint64 _bytes = 0;
    int _problems = 0;
    bool _isExporting = false;
};

} // namespace zdt
