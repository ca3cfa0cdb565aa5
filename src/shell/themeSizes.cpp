#include "shell/themeSizes.h"

#include "store/themeResource.h"

#include <utility>

namespace zdt {

ThemeSizes::ThemeSizes(std::string root, QObject* parent)
    : QObject(parent)
    , _root(std::move(root)) {
    _worker.setMaxThreadCount(1);
}

ThemeSizes::~ThemeSizes() {
    _worker.clear();
    _worker.waitForDone();
}

std::optional<std::uint64_t> ThemeSizes::find(const std::string& name, std::int64_t changedAt) {
    const auto [entry, isNew] = _sizes.try_emplace(name);
    Size& size = entry->second;
    if (!isNew && size.changedAt == changedAt)
        return size.bytes;
    size = {changedAt, {}};
    const auto measure = [this, name, changedAt] {
        const std::uint64_t bytes = ThemeResource::themeSize(name, _root);
        QMetaObject::invokeMethod(
            this,
            [this, name, changedAt, bytes] {
                if (_sizes[name].changedAt == changedAt)
                    _sizes[name].bytes = bytes;
                emit known(QString::fromStdString(name));
            },
            Qt::QueuedConnection);
    };
    // What was asked for last is what is seen now.
    _worker.start(measure, ++_priority);
    return std::nullopt;
}

} // namespace zdt
