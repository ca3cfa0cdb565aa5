#include "kit/skinLoader.h"

#include "kit/kitControls.h"
#include "kit/kitStyle.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSet>
#include <QStringList>
#include <QUiLoader>

#include <utility>

namespace zdt {

namespace {

/// A layout is written by hand or by Qt Designer; none of ours comes near.
constexpr qint64 maximumLayout = 4 << 20;

SkinLoader::Result failed(const QString& name, const QString& why) {
    return {nullptr, name + ": " + why};
}

} // namespace

/// Qt's loader gives null for an unknown class and says nothing, so it is noticed here. Making one takes time: one
/// serves all layouts.
class FormLoader : public QUiLoader {
public:
    FormLoader() {
        setLanguageChangeEnabled(false);
        for (const QString& name : availableWidgets())
            _standard.insert(name);
        _standard.insert("Line");
    }

    void registerControl(const QString& className, SkinLoader::Factory factory) {
        _controls[className] = std::move(factory);
    }

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
        const auto own = _controls.find(className);
        QWidget* widget = nullptr;
        if (own != _controls.end())
            widget = own->second(parent);
        else if (_standard.contains(className))
            widget = QUiLoader::createWidget(className, parent, name);
        if (!widget) {
            _unknown += QString("%1 (\"%2\")").arg(className, name);
            return nullptr;
        }
        widget->setObjectName(name);
        return widget;
    }

    /// The classes of the last layout that nobody knows.
    [[nodiscard]] QStringList takeUnknown() { return std::exchange(_unknown, {}); }

private:
    std::map<QString, SkinLoader::Factory> _controls;
    QSet<QString> _standard;
    QStringList _unknown;
};

namespace {

/// Qt's loader takes in every plugin of Qt Designer that the system has when it is made, with the libraries they ask
/// for. Layouts of the skin use none of them, so it is made where it finds none.
std::shared_ptr<FormLoader> makeFormLoader() {
    const QStringList paths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    auto loader = std::make_shared<FormLoader>();
    QCoreApplication::setLibraryPaths(paths);
    return loader;
}

} // namespace

SkinLoader::SkinLoader(QStringList folders)
    : _folders(std::move(folders))
    , _loader(makeFormLoader()) {
    registerKitControls(*this);
}

void SkinLoader::registerControl(const QString& className, Factory factory) {
    _loader->registerControl(className, std::move(factory));
}

SkinLoader::Result SkinLoader::loadFile(const QString& path, QWidget* parent) const {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failed(path, file.errorString());
    if (file.size() > maximumLayout)
        return failed(path, "too large for a layout");
    return loadText(file.readAll(), path, parent);
}

SkinLoader::Result SkinLoader::load(const QString& name, QWidget* parent) const {
    QStringList errors;
    for (const QString& folder : _folders) {
        Result result = loadFile(QDir(folder).filePath(name), parent);
        if (result.widget)
            return result;
        errors += result.error;
    }
    return failed(name, errors.isEmpty() ? "no folder for layouts" : errors.join("; "));
}

SkinLoader::Result SkinLoader::loadText(const QByteArray& layout, const QString& name, QWidget* parent) const {
    QBuffer buffer;
    buffer.setData(layout);
    buffer.open(QIODevice::ReadOnly);
    std::unique_ptr<QWidget> widget(_loader->load(&buffer, parent));
    if (const QStringList unknown = _loader->takeUnknown(); !unknown.isEmpty())
        return failed(name, "unknown class " + unknown.join(", "));
    if (!widget)
        return failed(name, _loader->errorString().isEmpty() ? "no widget in it" : _loader->errorString());
    polishControls(widget.get());
    return {std::move(widget), {}};
}

} // namespace zdt
