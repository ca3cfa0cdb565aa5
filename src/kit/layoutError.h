#pragma once

#include <QString>

#include <stdexcept>

namespace zdt {

/// Why a window or page can't be made of its layout: the file is missing, damaged, or lacks a control. In English, for
/// the author of a skin. Whoever makes a page says so in its place and goes on with the others.
class LayoutError : public std::runtime_error {
public:
    explicit LayoutError(const QString& what)
        : std::runtime_error(what.toStdString()) {}
};

} // namespace zdt
