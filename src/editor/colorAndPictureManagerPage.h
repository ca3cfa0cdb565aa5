#pragma once

#include "canvas/screens/screenLayer.h"
#include "editor/colourItems.h"
#include "editor/pictureEntry.h"
#include "editor/screenStrip.h"
#include "kit/fileChoice.h"
#include "kit/page.h"

#include <QColor>
#include <QElapsedTimer>
#include <QTimer>

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;

namespace zdt {

class BatchUpload;
class CColorAndPictureSetPage;
class CColorItem;
class PreviewComposition;
class ScreenLegend;
class ScreenPictures;
class ZElidedLabel;
class ZFlowView;
class ZPhoneView;

/// The page of a module: its screens in a strip, the chosen one on a phone, and beside it what can be changed on it. An
/// edit is stored at once, and every preview that shows it follows.
///
/// Controls of rows are named "<module>|<screen>|<key>|<kind>|<control>", those of a screen as a whole without the key;
/// what they do arrives as notifications and is told apart by these names.
class CColorAndPictureManagerPage : public ZPage {
    Q_OBJECT

public:
    CColorAndPictureManagerPage(Workbench& bench, std::string module, QWidget* parent);
    ~CColorAndPictureManagerPage() override;

    void Notify(const Notification& message) override;

    [[nodiscard]] const std::string& module() const { return _module; }
    /// Index of the chosen screen in the strip; -1 without one.
    [[nodiscard]] int screen() const { return _screen; }
    [[nodiscard]] int screenCount() const { return static_cast<int>(_views.size()); }
    /// Shows the row of a setting, given as module, group and item, or of a picture, as module and file, on the first
    /// screen that has it, the chosen one before all others. False if none has.
    bool showKey(const std::string& key);
    void focusSearch();

    FileChoice pictureChoice{QStandardPaths::PicturesLocation};

signals:
    /// The theme isn't what it was.
    void edited();
    /// A place was clicked whose key, the names down to it joined by "/", stands on another page.
    void keyRequested(const QString& key);

protected:
    /// What a page does with a picture that the theme has taken, or put back: mirrors it onto its other uses.
    /// @param preview index of the screen
    /// @return 0, or a code of the store, and then the picture is taken back
    virtual int OnPictureChanged(int preview, const std::string& name, const std::string& path);
    void reload() override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct View {
        const Screen* screen;
        std::shared_ptr<PreviewComposition> composition; ///< Null until it is seen.
        CColorAndPictureSetPage* set = nullptr;          ///< Null until the screen is chosen.
    };

    // What is shown
    void connectBar();
    void rebuild();
    void dropViews();
    /// Shows the first screen, with all previews put together again.
    void startAnew();
    void showWords();
    void showScreen(int index);
    CColorAndPictureSetPage& setPage(int index);
    void fillSet(int index);
    [[nodiscard]] PreviewDescription describe(const View& view) const;
    PreviewComposition& composition(int index);
    void composeNext();
    /// Lets one of the strip's previews follow an edit.
    void refreshNext();
    void showZoom();
    /// Leaves words out of a narrow bar.
    void fitBar();
    void placeLegend();
    void makeRoomForLegend();
    [[nodiscard]] View& view() { return _views[static_cast<std::size_t>(_screen)]; }
    [[nodiscard]] bool hasScreen() const { return _screen >= 0; }
    [[nodiscard]] QString nameOf(const View& view) const;
    [[nodiscard]] int indexOf(const QString& screen) const;

    // What is pointed at
    void pointAt(const std::string& key);
    void pointAtNothing();
    /// Goes to the row of what was clicked on the phone, wherever that is.
    void pick(const std::string& key);
    void sayHint(const QString& text);
    void setInspecting(bool on);
    /// While the key is held.
    void inspectByKey(bool on);
    [[nodiscard]] QString wordsOfKey(const std::string& key) const;

    // What the controls do
    void dispatch(QObject* sender, const QString& message, const QStringList& tokens);
    void clickRow(CColorItem& item, const QString& control);
    void typeColour(CColorItem& item, const QLineEdit& field);
    [[nodiscard]] bool mayEdit(const CColorItem& item);
    void storeColour(CColorItem& item, const QColor& colour, const QLineEdit* typedIn);
    void chooseColour(CColorItem& item);
    void tryColour(const std::string& key, const QColor& colour);
    void switchShadow(CColorItem& item);
    void resetColour(CColorItem& item);
    /// Shows on all previews what a setting is now, and tells of the change.
    void colourChanged(const ItemPath& path);
    /// The first half of it.
    void showChanged(const ItemPath& path);
    void refreshVisibility();

    // What is done with pictures
    void connectBatch();
    ScreenPictures* makePictures(const Screen& screen, CColorAndPictureSetPage& set);
    void showAsGrid(bool isGrid);
    void fillPictures(int index);
    /// @param key of the layers, "<sub-module>/<name>"
    void hintPicture(const std::string& key);
    void clearPictureHint();
    /// Shows where on the phone a picture is.
    void pulsePicture(const QString& key);
    void choosePicture(const PictureEntry& entry);
    void uploadPictureFile(PictureEntry entry, const QString& path);
    void resetEntry(PictureEntry entry);
    void savePicture(const PictureEntry& entry);
    /// Makes the composed screen the theme's preview picture of the module.
    void captureScreen();
    void entryChanged(const PictureEntry& entry);
    /// Shows on all previews what a picture is now, and tells of the change.
    void pictureChanged(const std::string& key);

    std::string _module;
    QLabel& _title;
    QLabel& _count;
    QPushButton& _outlines;
    QPushButton& _capture;
    QPushButton& _zoomOut;
    QPushButton& _zoomFit;
    QPushButton& _zoomIn;
    ZFlowView& _stripView;
    QStackedWidget& _sets;
    ZElidedLabel& _hint;
    ZPhoneView* _phone;
    ScreenLegend* _legend;
    ScreenStrip _strip;
    std::unique_ptr<BatchUpload> _batch;
    bool _isGrid = false; ///< How pictures are shown.
    std::vector<View> _views;
    int _screen = -1;
    std::uint64_t _theme = 0;        ///< The serial of the theme that is shown.
    std::string _pointedKey;         ///< The colour or picture that the pointer is on; empty for none.
    bool _isInspectingByKey = false; ///< While the key is held.
    QTimer _composing;               ///< The strip's previews, one after the other.
    std::set<int> _oldPreviews;      ///< Of the strip.
    QTimer _stripTimer;              ///< They follow a row of quick edits when it ends.
    QTimer _tryTimer;                ///< Colours that are tried are written at most thirty times a second.
    QColor _tried;
    QColor _written;      ///< The last one that was tried and stored.
    QTimer _outlineTimer; ///< Outlines give way to a colour that is being changed, and come back.
};

} // namespace zdt
