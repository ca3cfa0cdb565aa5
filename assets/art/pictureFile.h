#pragma once

#include <QByteArray>

#include <string>

namespace zdt::assets {

/// Writes an encoded picture, and the folders on its way. A file that holds the same bytes stays untouched, so that
/// what was made of it isn't made again. False, said on standard error in the program's name, if there is no picture or
/// it can't be written.
[[nodiscard]] bool writePicture(const std::string& path, const QByteArray& bytes, const char* program);

/// Says on standard error what a program can't make; false.
bool complain(const std::string& path, const char* program);

} // namespace zdt::assets
