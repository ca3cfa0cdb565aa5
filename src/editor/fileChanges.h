#pragma once

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace zdt {

/// Tells which files of a theme differ from the template's. What takes reading is done by a worker, once for each
/// state of the two.
class FileChanges : public QObject {
    Q_OBJECT

public:
    explicit FileChanges(QObject* parent = nullptr);
    ~FileChanges() override;

    /// Whether two files differ, an empty path being one that isn't there; nothing if they were asked for just now, and
    /// then `known` follows.
    [[nodiscard]] std::optional<bool> differs(const std::string& file, const std::string& standing);
    /// Forgets all that it knows; what is being compared isn't told any more.
    void forget();
    /// Has what was asked for since the last time compared.
    void start();

signals:
    void known();

private:
    struct Pair {
        std::string stamp;
        std::string file;
        std::string standing;
    };

    void compare(const std::vector<Pair>& pairs);

    std::unordered_map<std::string, std::optional<bool>> _known; ///< By both stamps; nothing while it is asked for.
    std::vector<Pair> _asked;
    std::atomic<bool> _ending = false;
    QThreadPool _worker;
};

} // namespace zdt
