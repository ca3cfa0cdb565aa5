#pragma once

#include "editor/pictureViewCell.h"
#include "kit/fileChoice.h"
#include "kit/notifications.h"

#include <QString>
#include <QStringList>
#include <QWidget>

#include <string>
#include <vector>

namespace zdt {

class Workbench;
class ZFlowView;

/// The strip of pictures, such as the frames of an animation, that one key has. It holds the list and touches no theme:
/// its owner gives the files and stores what it makes of them. `Reload_Picture_Lists`, which it sends to itself after
/// each change, rebuilds it.
class ZResPicturePage : public QWidget, public INotifyUI {
    Q_OBJECT

public:
    /// @param key in front of the controls' names
    ZResPicturePage(Workbench& bench, const QString& key, QWidget* parent = nullptr);
    ~ZResPicturePage() override;

    /// Shows other files; `filesChanged` doesn't follow.
    void setFiles(const std::vector<std::string>& files);
    [[nodiscard]] const std::vector<std::string>& files() const { return _files; }
    /// By which the most stills are told; 0 at first.
    void setMode(int mode);

    /// Adds files, as many as there is room for, and says what stands in the way.
    void addFiles(const QStringList& files);
    void Notify(const Notification& message) override;

    FileChoice pictureChoice{QStandardPaths::PicturesLocation};

signals:
    /// The author changed the list.
    void filesChanged(const std::vector<std::string>& files);
    /// A picture is to be shown.
    void pictureChosen(int index);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void askFiles();
    void replace(int index);
    void remove(int index);
    void activate(int index);
    void change();
    void rebuild();

    Workbench& _bench;
    int _mode = 0;
    std::vector<std::string> _files;
    CPictureViewDataSource* _source;
    ZFlowView* _view;
};

} // namespace zdt
