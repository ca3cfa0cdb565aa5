#include "canvas/pointRecords.h"

#include "packaging/pictureReader.h"
#include "support/plainFile.h"

#include <unistd.h>

#include <QRect>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>
#include <span>
#include <vector>

namespace zdt {

namespace {

constexpr std::size_t pathSize = 260;
constexpr std::size_t headSize = 4 + pathSize;
constexpr std::size_t pointSize = 12;
/// More than the skin has pictures; what follows is taken for damage.
constexpr std::size_t maxRecords = 20000;
/// Points that are read or written at once: a large picture has hundreds of millions of bytes of them.
constexpr std::size_t chunkPoints = 8192;

using Head = std::array<char, headSize>;

/// Empty for a path that nothing ends.
std::string nameIn(const Head& head) {
    const char* first = head.data() + 4;
    const char* end = std::find(first, first + pathSize, '\0');
    return end == first + pathSize ? std::string() : std::string(first, end);
}

Head headOf(const std::string& name, std::uint32_t count) {
    Head head{};
    qToLittleEndian<quint32>(count, head.data());
    std::memcpy(head.data() + 4, name.data(), std::min(name.size(), maxPointPath));
    return head;
}

bool writeAll(int descriptor, std::uint64_t offset, std::span<const char> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::pwrite(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (written <= 0)
            return false;
        offset += static_cast<std::uint64_t>(written);
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

/// Writes what it is given in large pieces.
class ChunkWriter {
public:
    ChunkWriter(int descriptor, std::uint64_t offset)
        : _descriptor(descriptor)
        , _offset(offset) {
        _bytes.reserve(chunkPoints * pointSize);
    }

    void put(const CFileImagePoint& point) {
        std::array<char, pointSize> bytes;
        qToLittleEndian<qint32>(point.x, bytes.data());
        qToLittleEndian<qint32>(point.y, bytes.data() + 4);
        qToLittleEndian<qint32>(point.alpha, bytes.data() + 8);
        _bytes.insert(_bytes.end(), bytes.begin(), bytes.end());
        if (_bytes.size() >= chunkPoints * pointSize)
            _isGood = flush();
    }

    [[nodiscard]] bool flush() {
        _isGood = _isGood && writeAll(_descriptor, _offset, _bytes);
        _offset += _bytes.size();
        _bytes.clear();
        return _isGood;
    }

private:
    int _descriptor;
    std::uint64_t _offset;
    std::vector<char> _bytes;
    bool _isGood = true;
};

/// Puts points on a picture's alphas. False for one that isn't the picture's.
bool takePoints(std::span<const char> bytes, const QSize& size, std::vector<std::uint8_t>& alphas) {
    for (; bytes.size() >= pointSize; bytes = bytes.subspan(pointSize)) {
        const auto x = qFromLittleEndian<qint32>(bytes.data());
        const auto y = qFromLittleEndian<qint32>(bytes.data() + 4);
        const auto alpha = qFromLittleEndian<qint32>(bytes.data() + 8);
        if (x < 0 || y < 0 || x >= size.width() || y >= size.height() || alpha < 1 || alpha > 255)
            return false;
        alphas[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width()) + static_cast<std::size_t>(x)] =
            static_cast<std::uint8_t>(alpha);
    }
    return true;
}

/// Hands `size` bytes from `offset` on to `take`, piece by piece, until it gives false. False as well if some are
/// missing.
template <typename Take>
bool readChunks(const PlainFile& file, std::uint64_t offset, std::uint64_t size, const Take& take) {
    std::vector<char> bytes(std::min<std::uint64_t>(size, chunkPoints * pointSize));
    for (std::uint64_t done = 0; done < size;) {
        const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(size - done, bytes.size()));
        if (file.read(offset + done, bytes.data(), wanted) != wanted || !take(std::span(bytes.data(), wanted), done))
            return false;
        done += wanted;
    }
    return true;
}

} // namespace

std::uint64_t pointRecordSize(std::uint32_t count) {
    return headSize + std::uint64_t{count} * pointSize;
}

PointIndex scanPoints(const PlainFile& file) {
    PointIndex index;
    if (!file.isOpen() || ::fstat(file.descriptor(), &index.file) != 0)
        return index;
    std::size_t met = 0;
    Head head;
    while (file.size() <= maxPointFileBytes && met < maxRecords &&
           file.read(index.end, head.data(), headSize) == headSize) {
        const auto count = qFromLittleEndian<quint32>(head.data());
        if (index.end + pointRecordSize(count) > file.size())
            break;
        if (const std::string name = nameIn(head); !name.empty())
            index.records[name] = {index.end, count, std::nullopt};
        index.end += pointRecordSize(count);
        ++met;
    }
    index.hasRest = index.end != file.size() || index.records.size() != met;
    return index;
}

std::optional<InkMask> readPoints(const PlainFile& file, const std::string& name, const PointRecord& record,
                                  const QSize& size) {
    const std::int64_t pixels = static_cast<std::int64_t>(size.width()) * size.height();
    Head head;
    // Another process may have put another file there since, with other records.
    if (size.isEmpty() || pixels > maxPicturePixels || record.count > pixels ||
        file.read(record.offset, head.data(), headSize) != headSize || head != headOf(name, record.count))
        return std::nullopt;
    std::vector<std::uint8_t> alphas(static_cast<std::size_t>(pixels), 0);
    const auto take = [&](std::span<const char> bytes, std::uint64_t) { return takePoints(bytes, size, alphas); };
    if (!readChunks(file, record.offset + headSize, std::uint64_t{record.count} * pointSize, take))
        return std::nullopt;
    return InkMask::ofAlphas(size, alphas);
}

bool writePoints(int descriptor, std::uint64_t offset, const std::string& name, std::uint32_t count,
                 const InkMask& mask) {
    if (!writeAll(descriptor, offset, headOf(name, count)))
        return false;
    ChunkWriter writer(descriptor, offset + headSize);
    mask.visitPoints([&writer](const CFileImagePoint& point) { writer.put(point); });
    return writer.flush();
}

bool killPoints(int descriptor, const PointRecord& record) {
    constexpr std::array<char, 1> nothing{};
    return writeAll(descriptor, record.offset + 4, nothing);
}

bool copyPoints(const PlainFile& from, const PointRecord& record, int descriptor, std::uint64_t offset) {
    return readChunks(
        from, record.offset, pointRecordSize(record.count),
        [&](std::span<const char> bytes, std::uint64_t done) { return writeAll(descriptor, offset + done, bytes); });
}

} // namespace zdt
