#pragma once

#include "support/atomicFile.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

/// Text files of lines `key=value`: a theme's settings and the properties of a video.
namespace zdt {

using KeyValues = std::map<std::string, std::string>;

/// Reads lines `key=value`. Empty lines, lines that begin with "#", lines with no "=" and lines with nothing behind the
/// first "=" are skipped; one trailing carriage return is dropped; a later line replaces an earlier one of its key.
[[nodiscard]] KeyValues parseKeyValues(std::string_view text);

/// `parseKeyValues` of a file. Nothing if it can't be read or is larger than any such file can be: 1 MiB, or 10,000
/// pairs.
[[nodiscard]] std::optional<KeyValues> loadKeyValueFile(const std::string& path);

/// The same, empty for nothing.
[[nodiscard]] KeyValues readKeyValueFile(const std::string& path);

/// Writes the pairs in ascending key order, a line each. False if that fails, and for a key or value with a line break,
/// which the format can't hold: the file is then as before.
[[nodiscard]] bool writeKeyValueFile(const std::string& path, const KeyValues& pairs, Flush flush = Flush::no);

} // namespace zdt
