#pragma once

#include "editor/batchPlan.h"
#include "editor/pictureUpload.h"
#include "kit/fileChoice.h"
#include "kit/notifications.h"

#include <QObject>
#include <QPointer>
#include <QSemaphore>
#include <QStringList>
#include <QWidget>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace zdt {

class BatchDialog;
class Workbench;
class ZProgressDialog;

/// Replaces many pictures of a module's page at once, each by a file of its name. `Notify_Drag_File_Simple` begins it
/// (`wParam` 1), and begins the storing (2) once `Notify_Drag_File_Simple_9PNG` came from each worker that compiles;
/// both are this object's own and nobody else's matter. `Notify_ReloadDataMsg` follows.
class BatchUpload : public QObject, public INotifyUI {
    Q_OBJECT

public:
    enum Phase : std::intptr_t { compiling = 1, storing = 2 };

    /// @param page in whose window the dialogs stand; it must outlive this
    BatchUpload(Workbench& bench, std::string module, QWidget& page);
    ~BatchUpload() override;

    /// Lets the author choose many files, and begins with them.
    void askFiles();
    /// Begins with files and folders; nothing while a batch is under way or for none. Gives control back at once.
    void start(const QStringList& files);
    [[nodiscard]] bool isBusy() const { return _isBusy; }
    /// Says how a batch goes.
    void tellHow();

    void Notify(const Notification& message) override;

    /// Puts a file in the place of an entry's, with a progress where that takes long, and keeps what came of it. The
    /// entry shows it then.
    [[nodiscard]] UploadResult upload(QWidget* window, PictureEntry& entry, const std::string& path);
    /// What was given for an entry, or refused, is past.
    void forget(const PictureEntry& entry);
    void forgetAll();
    /// Shows in groups that were made anew what this session gave: the paths, which rows failed, and why.
    void markEntries(std::vector<PictureGroup>& groups) const;

    /// What the last batches couldn't store, by the names of the rows; gone once a row is replaced or reset, and with
    /// the theme (`Reload_history_themes`).
    std::map<std::string, BatchRefusal> problemFiles;
    /// The paths that the author gave for the theme, by the keys of the entries.
    std::map<std::string, std::string> uploadedFiles;
    PictureChanged pictureChanged; ///< The page's own part of storing a picture.
    NinePatchCompiler compiler;
    FileChoice pictureChoice{QStandardPaths::PicturesLocation};

signals:
    /// A batch has ended, and its files are stored. The summary comes behind it.
    void finished(const zdt::BatchResult& result);
    /// A picture was replaced from the summary.
    void replaced(const zdt::PictureEntry& entry);

private:
    struct Work;

    void run();
    [[nodiscard]] bool work(Work& work, ZProgressDialog& dialog, const Progress& progress);
    [[nodiscard]] bool waitForStoring(const ZProgressDialog& dialog);
    void workerEnded(std::size_t run);
    void storeOne(Work& work, BatchFile& file);
    void takeResult(const Work& work, bool cancelled);
    void showResult();
    void listProblems();
    void chooseAnother(BatchDialog& dialog, int index);
    void choosePlace(BatchDialog& dialog, int index, const QPoint& position);
    void replaceRefused(BatchDialog& dialog, int index, PictureEntry& entry, const std::string& path);

    Workbench& _bench;
    std::string _module;
    QWidget& _page;
    bool _isBusy = false;
    QStringList _pendingFiles;
    std::uint64_t _theme = 0; ///< The serial of the one for which the batch was begun.
    std::atomic<std::size_t> _runs = 0;
    std::map<std::size_t, bool> _workerDone;
    QSemaphore _storing;
    BatchResult _result;
    std::vector<PictureGroup> _groups;
};

} // namespace zdt
