#pragma once

#include <QObject>
#include <QString>
#include <QThreadPool>

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

namespace zdt {

/// The sizes of themes, added up by a worker, since a folder of hundreds takes its time. Belongs to the interface
/// thread.
class ThemeSizes : public QObject {
    Q_OBJECT

public:
    explicit ThemeSizes(std::string root, QObject* parent = nullptr);
    /// Waits for the theme that is being added up.
    ~ThemeSizes() override;

    /// Bytes of all files of a theme that was changed at that time; nothing while they are added up, and then `known`
    /// follows.
    [[nodiscard]] std::optional<std::uint64_t> find(const std::string& name, std::int64_t changedAt);

signals:
    void known(const QString& name);

private:
    struct Size {
        std::int64_t changedAt = 0;
        std::optional<std::uint64_t> bytes;
    };

    std::string _root;
    std::unordered_map<std::string, Size> _sizes;
    int _priority = 0;
    QThreadPool _worker;
};

} // namespace zdt
