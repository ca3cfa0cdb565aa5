#pragma once

#include "shell/themeList.h"

#include <QCache>
#include <QObject>
#include <QPixmap>
#include <QSize>
#include <QThreadPool>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zdt {

/// Decodes the covers of themes and adds up their sizes, on threads of its own, so that a page of cards shows at once.
/// What was asked for last comes first, since it is what is seen. Belongs to the interface thread.
class CoverLoader : public QObject {
    Q_OBJECT

public:
    struct Entry {
        QPixmap cover;       ///< Null for a theme without a cover that can be read.
        std::uint64_t bytes; ///< Of all the theme's files.
    };

    /// @param cover the size of a cover in device pixels: it is filled, and what goes beyond is cut off at both ends
    CoverLoader(std::string root, QSize cover, QObject* parent = nullptr);
    /// Waits for what is being decoded.
    ~CoverLoader() override;

    /// What is known of a theme as it stood at `card.changedAt`; null while that is being found out, and `loaded` tells
    /// when it is known.
    [[nodiscard]] const Entry* entry(const ThemeCard& card);

signals:
    void loaded(const QString& name);

private:
    struct Request {
        QString key;
        std::string name;
        std::string cover;
    };

    void startNext();
    void take(const Request& request, const QImage& cover, std::uint64_t bytes);

    std::string _root;
    QSize _size;
    QCache<QString, Entry> _entries;
    std::vector<Request> _waiting;
    std::vector<QString> _running;
    QThreadPool _threads;
};

} // namespace zdt
