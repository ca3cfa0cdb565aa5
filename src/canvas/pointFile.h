#pragma once

#include "canvas/inkMask.h"
#include "canvas/pointRecords.h"
#include "kit/skinFolder.h"

#include <QSize>

#include <cstddef>
#include <ctime>
#include <optional>
#include <string>

namespace zdt {

/// `ImageInfo.desc` in the skin's folder: the points of pictures, record after record. A record is the count of its
/// points (4 bytes), the picture's path from "skin/" on (260 bytes, zeros behind it), and 12 bytes for each point: x, y
/// and alpha. All numbers are little-endian.
///
/// It is read from the workspace, and as it was shipped for pictures that were shipped too; it is written in the
/// workspace alone. A damaged rest is dropped, and a record without a path counts as removed. The file's time is that
/// of the newest picture in it, so that a picture that was replaced since is newer than the file and its record is
/// dropped too; what was recorded of a newer one counts once the others were looked at, which is done for many at
/// once. Several processes may write: one that finds the file in use doesn't. What can't be written is only not kept.
class PointFile {
public:
    /// Reads where each record stands, and no points.
    explicit PointFile(SkinRoots roots);
    ~PointFile();
    PointFile(const PointFile&) = delete;
    PointFile& operator=(const PointFile&) = delete;

    /// What is recorded of a picture of `size` pixels. Nothing without a record, or if it doesn't fit such a picture.
    [[nodiscard]] std::optional<InkMask> find(const std::string& name, const std::string& picture,
                                              const QSize& size) const;

    /// Records a shape at once. `name` is the path from "skin/" on, `picture` where it stands.
    void append(const std::string& name, const std::string& picture, const InkMask& mask);

private:
    class Lock;

    [[nodiscard]] bool openFile();
    [[nodiscard]] bool lockFile();
    [[nodiscard]] bool isInPlace() const;
    [[nodiscard]] bool isAsRead() const;
    [[nodiscard]] bool prepare();
    [[nodiscard]] bool rewrite();
    std::size_t dropStale();
    void write(const std::string& name, const std::timespec& changed, const InkMask& mask);
    void settle();
    void stampFile(const std::timespec& time);
    void closeFile();

    SkinRoots _roots;
    std::string _path; ///< Of the file in the workspace.
    std::string _shippedPath;
    PointIndex _own;
    PointIndex _shipped; ///< Empty if the two are one.
    int _descriptor = -1;
    std::size_t _unsettled = 0; ///< Records whose pictures may be newer than the file says.
    bool _isPrepared = false;   ///< The file ends with a whole record, and none was stale when that was found.
    bool _isGivenUp = false;    ///< It can't be written.
};

} // namespace zdt
