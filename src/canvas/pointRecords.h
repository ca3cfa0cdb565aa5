#pragma once

#include "canvas/inkMask.h"

#include <sys/stat.h>

#include <QSize>

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <map>
#include <optional>
#include <string>

namespace zdt {

class PlainFile;

/// Bytes of the longest picture's path that a record takes: a zero must follow it.
inline constexpr std::size_t maxPointPath = 259;
/// A larger file isn't read, and none is made.
inline constexpr std::uint64_t maxPointFileBytes = std::uint64_t{512} << 20;

/// Where a picture's points stand.
struct PointRecord {
    std::uint64_t offset = 0; ///< Of its first byte.
    std::uint32_t count = 0;
    std::optional<std::timespec> changed; ///< The picture's time when it was recorded, where that is known.
};

/// What a file of points holds, by the pictures' paths from "skin/" on.
struct PointIndex {
    std::map<std::string, PointRecord> records; ///< The last of each picture.
    std::uint64_t end = 0;                      ///< Behind the last whole record.
    bool hasRest = false;                       ///< The file holds more than these records.
    struct stat file {};                        ///< As it was read.
};

[[nodiscard]] std::uint64_t pointRecordSize(std::uint32_t count);

/// Reads where the records stand, and no points. Nothing of a file that isn't open or is too large.
[[nodiscard]] PointIndex scanPoints(const PlainFile& file);

/// The shape in a record. Nothing if another record stands there, or points that no picture of `size` pixels has.
[[nodiscard]] std::optional<InkMask> readPoints(const PlainFile& file, const std::string& name,
                                                const PointRecord& record, const QSize& size);

/// Writes a record, which may fail half-way.
[[nodiscard]] bool writePoints(int descriptor, std::uint64_t offset, const std::string& name, std::uint32_t count,
                               const InkMask& mask);

/// Takes a record's picture from it.
[[nodiscard]] bool killPoints(int descriptor, const PointRecord& record);

/// Copies a record's bytes as they are.
[[nodiscard]] bool copyPoints(const PlainFile& from, const PointRecord& record, int descriptor, std::uint64_t offset);

} // namespace zdt
