#pragma once

#include <QStringList>

namespace zdt {

/// The files of the skin that no folder has with anything in them. Without its style, a layout or a language the
/// program runs, but not as it should.
[[nodiscard]] QStringList missingSkinFiles(const QStringList& folders);

} // namespace zdt
