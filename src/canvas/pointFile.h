#pragma once

#include "canvas/inkMask.h"
#include "kit/skinFolder.h"

#include <QSize>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace zdt {

/// Bytes of the longest picture's path that a record takes: a zero must follow it.
inline constexpr std::size_t maxPointPath = 259;

/// `ImageInfo.desc` in the skin's folder: the points of pictures, record after record. A record is the count of its
/// points (4 bytes), the picture's path from "skin/" on (260 bytes, zeros behind it), and 12 bytes for each point: x, y
/// and alpha. All numbers are little-endian.
///
/// It is read from the workspace, or as it was shipped, and written in the workspace alone. A damaged rest is dropped.
/// The file's time is that of the newest picture in it, so that a picture that was replaced since is newer than the
/// file and its record is dropped too. What can't be written is only not kept.
class PointFile {
public:
    /// Reads where each record stands, and no points.
    explicit PointFile(SkinRoots roots);

    /// What is recorded of a picture of `size` pixels. Nothing without a record, or if it doesn't fit such a picture.
    [[nodiscard]] std::optional<InkMask> find(const std::string& name, const std::string& picture,
                                              const QSize& size) const;

    /// Records a shape at once. `name` is the path from "skin/" on, `picture` where it stands.
    void append(const std::string& name, const std::string& picture, const InkMask& mask);

private:
    struct Record {
        std::uint64_t offset = 0; ///< Of its first byte.
        std::uint32_t count = 0;
    };
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void scan(const std::string& path);
    [[nodiscard]] bool isFresh(const std::string& picture) const;
    void dropStale();
    [[nodiscard]] bool isReady();
    [[nodiscard]] bool rewrite(const std::string& target);
    [[nodiscard]] bool write(const std::string& name, const PixelList& points);
    void stampFile() const;

    SkinRoots _roots;
    std::string _path; ///< Of the file that is read.
    std::map<std::string, Record> _records;
    std::uint64_t _end = 0;    ///< Behind the last whole record.
    std::timespec _newest{};   ///< No record's picture is newer.
    bool _mustRewrite = false; ///< The file holds more than the records, or isn't the workspace's.
    bool _isGivenUp = false;   ///< It can't be written.
    std::unique_ptr<std::FILE, Close> _stream;
};

} // namespace zdt
