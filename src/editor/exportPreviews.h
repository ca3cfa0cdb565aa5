#pragma once

#include "editor/background.h"
#include "editor/fileChoice.h"
#include "editor/previewBoard.h"
#include "editor/previewPictures.h"
#include "editor/previewRender.h"
#include "editor/previewUpload.h"

#include <QObject>
#include <QTemporaryDir>

#include <memory>
#include <vector>

class QLabel;

namespace zdt {

class StateLine;
class Workbench;

/// The right half of the export page: the previews of the theme, drawn, listed and replaced.
class ExportPreviews : public QObject {
    Q_OBJECT

public:
    /// Finds its controls below `page`.
    ExportPreviews(Workbench& bench, QWidget& page);
    ~ExportPreviews() override;

    /// Lists the previews, and draws the cover and the small pictures anew. What comes of that is told when it is done.
    void refresh();
    /// Waits for what is being drawn or stored.
    void finish();
    /// Forgets the theme that was shown.
    void clear();
    /// Says everything in the present language.
    void retell();

    /// Takes a file as the preview of that name, or says why not.
    void replace(const QString& name, const QString& file);
    /// The same for what was dropped on the window: one file, meant for the card that was touched last.
    void takeDropped(const QStringList& files);

    [[nodiscard]] PreviewBoard& board() const { return *_board; }
    /// How many pictures are listed, those that are missing left out.
    [[nodiscard]] int readyCount() const;

    /// What asks for a picture, for tests to answer.
    ChoosePath choosePicture = zdt::choosePicture;

signals:
    /// The previews are other ones than before.
    void changed();
    void measured(quint64 bytes);

private:
    struct Drawing {
        std::vector<RenderedPicture> pictures;
        std::shared_ptr<QTemporaryDir> folder;
        std::string theme;
    };
    struct Upload {
        QString name;
        PreparedPreview prepared;
        std::shared_ptr<QTemporaryDir> folder;
        std::string theme;
    };

    void list();
    void readPictures();
    void askReplace(const QString& name);
    void takeFiles(const QString& name, const QStringList& files);
    void storeDrawing(const Drawing& drawing);
    void storeUpload(const Upload& upload);
    void sayReady();
    void sayDrawn();
    void warn(const QString& key);
    [[nodiscard]] std::shared_ptr<QTemporaryDir> workPlace() const;
    [[nodiscard]] std::vector<RenderTarget> targets() const;

    Workbench& _bench;
    QWidget& _page;
    PreviewBoard* _board;
    QLabel& _ready;
    StateLine& _drawn;
    PreviewPictures _pictures;
    QString _lastFolder;
    int _madeCount = -1; ///< Of the last drawing; -1 before the first.
    int _targetCount = 0;
    Background<Drawing> _drawing;
    Background<Upload> _upload;
};

} // namespace zdt
