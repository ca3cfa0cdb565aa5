#include "shell/application.h"

#include "kit/kitStyle.h"
#include "kit/layoutError.h"
#include "kit/localisation.h"
#include "kit/messageBoxDlg.h"
#include "kit/skinFolder.h"
#include "kit/workbench.h"
#include "shell/crashHandler.h"
#include "shell/firstWindow.h"
#include "shell/helperSweep.h"
#include "shell/mainFrame.h"
#include "shell/skinCheck.h"
#include "shell/templatePhones.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>
#include <memory>
#include <string>

namespace zdt {

namespace {

/// The one lock of all designers of a user.
constexpr const char* lockName = "CSZDDesigne";

QString lockPath() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    return QDir(folder).filePath(lockName);
}

/// False while another designer holds the lock. One that can't be made at all keeps nobody from working.
bool takeLock(QLockFile& lock) {
    if (lock.tryLock() || lock.error() != QLockFile::LockFailedError)
        return true;
    qint64 process = 0;
    QString host;
    QString program;
    if (lock.getLockInfo(&process, &host, &program))
        return false;
    // A full disk or a power cut leaves a file that nobody's name stands in.
    QFile::remove(lock.fileName());
    return lock.tryLock() || lock.error() != QLockFile::LockFailedError;
}

bool hasScreen() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

QStringList skinFolders() {
    const SkinRoots roots = skinRoots();
    const std::string below(skinFolderName);
    return {QString::fromStdString(roots.workspace + below), QString::fromStdString(roots.program + below)};
}

QSize firstSize() {
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    const WindowSize size = firstWindowSize({room.width(), room.height()});
    return {size.width, size.height};
}

/// Says what can't be read of the skin. In the words of the skin, or where those are missing, in plain English.
void tellOfSkin(const QStringList& faults, QWidget* window) {
    ZMessageBoxDlg::Message message;
    message.kind = ZMessageBoxDlg::Kind::Warning;
    message.titleKey = "kWindow_name";
    message.textKey = "kWindow_skin_damaged";
    message.acceptKey = "kConfirm";
    const auto lookup = [&](const QString& key) {
        const QString text = Text(key);
        if (key == "kWindow_skin_damaged") {
            const QString said =
                text.isEmpty() ? "Parts of the program's skin are missing or damaged. Install the program again" : text;
            return said + ":\n" + faults.join("\n");
        }
        if (!text.isEmpty())
            return text;
        return key == "kConfirm" ? QString("OK") : key == "kWindow_name" ? QString("zdtTool") : QString();
    };
    ZMessageBoxDlg::tell(message, lookup, window);
}

} // namespace

int runWindow(QApplication& application, const std::function<void(CMainFrameWnd&)>& whenShown) {
    QApplication::setApplicationName("zdtheme-designer");
    const QStringList folders = skinFolders();
    static_cast<void>(applyKitStyle(application, folders));
    SkinLoader layouts(folders);
    layouts.registerControl("CTemplatePhones", [](QWidget* parent) { return new CTemplatePhones(parent); });
    Workbench bench(layouts, workspaceFolder());
    const QStringList missing = missingSkinFiles(folders);
    std::unique_ptr<CMainFrameWnd> frame;
    try {
        frame = std::make_unique<CMainFrameWnd>(bench);
    } catch (const LayoutError& error) {
        std::fprintf(stderr, "zdtheme-designer: %s\n", error.what());
        tellOfSkin(missing + QStringList{QString::fromUtf8(error.what())}, nullptr);
        return 1;
    }
    frame->setGeometry(QRect(QPoint(0, 0), firstSize()));
    frame->show();
    if (!missing.isEmpty())
        QTimer::singleShot(0, frame.get(), [&] { tellOfSkin(missing, frame.get()); });
    if (whenShown)
        whenShown(*frame);
    return QApplication::exec();
}

int runDesigner(int argc, char* argv[]) {
    QLockFile lock(lockPath());
    lock.setStaleLockTime(0); // Held as long as its process lives, however long that is.
    if (!takeLock(lock))
        return 0;
    installCrashHandler();
    if (!hasScreen()) {
        std::fputs("zdtheme-designer: there is no display; set DISPLAY\n", stderr);
        return 1;
    }
    endProcessesOf(phoneHelper());
    int code = 1;
    if (!enterWorkspace()) {
        std::fputs("zdtheme-designer: there is no folder that can be written\n", stderr);
    } else {
        QApplication application(argc, argv);
        code = runWindow(application);
    }
    lock.unlock();
    endProcessesOf(phoneHelper());
    return code;
}

} // namespace zdt
