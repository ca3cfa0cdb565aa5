#pragma once

#include "editor/background.h"
#include "editor/previewBoard.h"
#include "editor/previewPictures.h"
#include "editor/previewRender.h"
#include "editor/previewUpload.h"
#include "kit/fileChoice.h"

#include <QObject>
#include <QTemporaryDir>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class QLabel;

namespace zdt {

class StateLine;
class Workbench;

/// The right half of the export page: the previews of the theme, drawn, listed, replaced and removed.
///
/// Pictures are drawn and made ready one behind another on a thread. What was begun for a theme reaches no other one,
/// also none of the same name that was opened since.
class ExportPreviews : public QObject {
    Q_OBJECT

public:
    /// Finds its controls below `page`.
    ExportPreviews(Workbench& bench, QWidget& page);
    ~ExportPreviews() override;

    /// Lists the previews, and draws the cover and the small pictures anew. What comes of that is told when it is done.
    void refresh();
    /// Waits, behind a dialog, until all that was begun is drawn and stored.
    void finish();
    /// Lets go of what isn't drawn or stored yet.
    void drop();
    /// While it is set, the author can change nothing.
    void setLocked(bool isLocked) { _isLocked = isLocked; }
    /// Whether the theme has other previews than at the last call.
    [[nodiscard]] bool takeChanged() { return std::exchange(_hasChanged, false); }
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

    FileChoice pictureChoice{QStandardPaths::PicturesLocation};

signals:
    /// The previews are other ones than before.
    void changed();
    void measured(quint64 bytes);

private:
    /// What a work leads to, done on the interface thread.
    using Result = std::function<void()>;
    /// What begins once the work before it is done.
    struct Waiting {
        std::uint64_t theme; ///< Its serial.
        std::function<void()> start;
    };

    void queue(std::function<void()> start);
    void startNext();
    void run(std::function<Result()> work);
    void startDrawing();
    void startUpload(const QString& name, const QString& file);
    void list();
    void readPictures();
    void showPicture(const QString& name, const QImage& picture, bool isOwn);
    void askReplace(const QString& name);
    void askRemove(const QString& name);
    void takeFiles(const QString& name, const QStringList& files);
    void storeDrawing(const std::vector<RenderedPicture>& pictures);
    void storeUpload(const QString& name, const PreparedPreview& prepared);
    [[nodiscard]] int storePicture(const std::string& name, const std::string& file);
    void sayReady();
    void sayDrawn();
    [[nodiscard]] std::shared_ptr<QTemporaryDir> workPlace() const;
    [[nodiscard]] std::vector<RenderTarget> targets() const;

    Workbench& _bench;
    QWidget& _page;
    PreviewBoard* _board;
    QLabel& _ready;
    StateLine& _drawn;
    PreviewPictures _pictures;
    bool _isLocked = false;
    bool _hasChanged = false;
    std::uint64_t _listed = 0; ///< The serial of the theme whose pictures are shown.
    unsigned _round = 0;       ///< Grows when work is let go.
    std::deque<Waiting> _waiting;
    std::uint64_t _drawingWaits = 0; ///< The serial of the theme for which a drawing waits; 0 for none.
    int _madeCount = -1;             ///< Of the last drawing; -1 before the first.
    int _targetCount = 0;
    Background<Result> _work;
};

} // namespace zdt
