#include "kit/skinLoader.h"

#include "kit/kitControls.h"
#include "kit/kitStyle.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QStringList>
#include <QUiLoader>

#include <utility>

namespace zdt {

namespace {

/// A layout is written by hand or by Qt Designer; none of ours comes near.
constexpr qint64 maximumLayout = 4 << 20;

/// Qt's loader gives null for an unknown class and says nothing, so it is noticed here.
class FormLoader : public QUiLoader {
public:
    explicit FormLoader(const std::map<QString, SkinLoader::Factory>& controls)
        : _controls(controls) {}

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
        const auto own = _controls.find(className);
        QWidget* widget = own != _controls.end() ? own->second(parent) : standard(className, parent, name);
        if (!widget) {
            _unknown += QString("%1 (\"%2\")").arg(className, name);
            return nullptr;
        }
        widget->setObjectName(name);
        return widget;
    }

    [[nodiscard]] const QStringList& unknown() const { return _unknown; }

private:
    QWidget* standard(const QString& className, QWidget* parent, const QString& name) {
        return className == "Line" || availableWidgets().contains(className)
                   ? QUiLoader::createWidget(className, parent, name)
                   : nullptr;
    }

    const std::map<QString, SkinLoader::Factory>& _controls;
    QStringList _unknown;
};

SkinLoader::Result failed(const QString& name, const QString& why) {
    return {nullptr, name + ": " + why};
}

} // namespace

SkinLoader::SkinLoader(QStringList folders)
    : _folders(std::move(folders)) {
    registerKitControls(*this);
}

void SkinLoader::registerControl(const QString& className, Factory factory) {
    _controls[className] = std::move(factory);
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
    FormLoader loader(_controls);
    QBuffer buffer;
    buffer.setData(layout);
    buffer.open(QIODevice::ReadOnly);
    std::unique_ptr<QWidget> widget(loader.load(&buffer, parent));
    if (!loader.unknown().isEmpty())
        return failed(name, "unknown class " + loader.unknown().join(", "));
    if (!widget)
        return failed(name, loader.errorString().isEmpty() ? "no widget in it" : loader.errorString());
    polishControls(widget.get());
    return {std::move(widget), {}};
}

} // namespace zdt
