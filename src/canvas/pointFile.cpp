#include "canvas/pointFile.h"

#include "packaging/pictureReader.h"
#include "support/atomicFile.h"
#include "support/files.h"
#include "support/plainFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>
#include <tuple>
#include <utility>
#include <vector>

namespace zdt {

namespace {

constexpr std::string_view pointFileName = "ImageInfo.desc";
constexpr std::size_t pathSize = 260;
constexpr std::size_t headSize = 4 + pathSize;
constexpr std::size_t pointSize = 12;
/// More than the skin has pictures; what follows is taken for damage.
constexpr std::size_t maxRecords = 20000;
constexpr std::uint64_t maxFileBytes = std::uint64_t{512} << 20;

using Head = std::array<char, headSize>;

std::uint64_t recordSize(std::uint32_t count) {
    return headSize + std::uint64_t{count} * pointSize;
}

bool isOlder(const std::timespec& one, const std::timespec& other) {
    return std::tie(one.tv_sec, one.tv_nsec) < std::tie(other.tv_sec, other.tv_nsec);
}

/// The time of a file's last change; nothing if it isn't there.
std::optional<std::timespec> changeTime(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return status.st_mtim;
}

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

std::optional<PixelList> pointsIn(const std::vector<char>& bytes, const QSize& size) {
    const QRect bounds(QPoint(), size);
    PixelList points(bytes.size() / pointSize);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const char* at = bytes.data() + i * pointSize;
        points[i] = {qFromLittleEndian<qint32>(at), qFromLittleEndian<qint32>(at + 4),
                     qFromLittleEndian<qint32>(at + 8)};
        if (!bounds.contains(points[i].x, points[i].y) || points[i].alpha < 1 || points[i].alpha > 255)
            return std::nullopt;
    }
    return points;
}

std::vector<char> bytesOf(const PixelList& points) {
    std::vector<char> bytes(points.size() * pointSize);
    for (std::size_t i = 0; i < points.size(); ++i) {
        char* at = bytes.data() + i * pointSize;
        qToLittleEndian<qint32>(points[i].x, at);
        qToLittleEndian<qint32>(points[i].y, at + 4);
        qToLittleEndian<qint32>(points[i].alpha, at + 8);
    }
    return bytes;
}

} // namespace

PointFile::PointFile(SkinRoots roots)
    : _roots(std::move(roots)) {
    const std::string name = std::string(skinFolderName) + std::string(pointFileName);
    const std::string own = _roots.workspace + name;
    const std::string shipped = _roots.program + name;
    scan(isPlainFile(own) ? own : shipped);
    _mustRewrite = _mustRewrite || (_path != own && !_records.empty());
}

void PointFile::scan(const std::string& path) {
    _path = path;
    _newest = changeTime(path).value_or(std::timespec{});
    const PlainFile file(path);
    std::size_t met = 0;
    Head head;
    while (met < maxRecords && file.read(_end, head.data(), headSize) == headSize) {
        const auto count = qFromLittleEndian<quint32>(head.data());
        if (recordSize(count) > file.size() - _end)
            break;
        const std::string name = nameIn(head);
        const std::string picture = resolveSkinPath(name, _roots);
        if (!picture.empty() && isFresh(picture))
            _records[name] = {_end, count};
        _end += recordSize(count);
        ++met;
    }
    _mustRewrite = _end != file.size() || _records.size() != met;
}

bool PointFile::isFresh(const std::string& picture) const {
    const auto changed = changeTime(picture);
    return changed && !isOlder(_newest, *changed);
}

std::optional<InkMask> PointFile::find(const std::string& name, const std::string& picture, const QSize& size) const {
    const auto found = _records.find(name);
    const std::int64_t pixels = static_cast<std::int64_t>(size.width()) * size.height();
    if (found == _records.end() || size.isEmpty() || pixels > maxPicturePixels || found->second.count > pixels ||
        !isFresh(picture))
        return std::nullopt;
    std::vector<char> bytes(found->second.count * pointSize);
    if (PlainFile(_path).read(found->second.offset + headSize, bytes.data(), bytes.size()) != bytes.size())
        return std::nullopt;
    const auto points = pointsIn(bytes, size);
    return points ? std::optional(InkMask::ofPoints(size, *points)) : std::nullopt;
}

void PointFile::append(const std::string& name, const std::string& picture, const InkMask& mask) {
    const auto changed = changeTime(picture);
    if (!changed || name.empty() || name.size() > maxPointPath || _isGivenUp)
        return;
    // The file is going to be newer; records of pictures that were replaced since must not become fresh by that.
    if (_records.erase(name) > 0) {
        _mustRewrite = true;
        _stream.reset();
    }
    if (isOlder(_newest, *changed)) {
        dropStale();
        _newest = *changed;
    }
    const PixelList points = mask.points();
    const auto count = static_cast<std::uint32_t>(points.size());
    if (!isReady() || _end + recordSize(count) > maxFileBytes || !write(name, points))
        return;
    _records[name] = {_end, count};
    _end += recordSize(count);
    stampFile();
}

void PointFile::dropStale() {
    const auto isStale = [this](const auto& record) { return !isFresh(resolveSkinPath(record.first, _roots)); };
    if (std::erase_if(_records, isStale) > 0) {
        _mustRewrite = true;
        _stream.reset();
    }
}

/// Whether records can be appended: the file is the workspace's, and ends with a whole record.
bool PointFile::isReady() {
    if (_stream || _isGivenUp)
        return !_isGivenUp;
    const std::string target = writableSkinFile(pointFileName, _roots);
    if (!target.empty() && (!_mustRewrite || rewrite(target))) {
        _path = target;
        _stream.reset(std::fopen(target.c_str(), "ab"));
    }
    _isGivenUp = !_stream;
    return !_isGivenUp;
}

bool PointFile::rewrite(const std::string& target) {
    AtomicFile file(target);
    const PlainFile source(_path);
    std::map<std::string, Record> records;
    std::uint64_t end = 0;
    if (!file.isOpen())
        return false;
    std::vector<char> bytes;
    for (const auto& [name, record] : _records) {
        bytes.resize(recordSize(record.count));
        if (source.read(record.offset, bytes.data(), bytes.size()) != bytes.size())
            continue;
        if (std::fwrite(bytes.data(), 1, bytes.size(), file.stream()) != bytes.size())
            return false;
        records[name] = {end, record.count};
        end += bytes.size();
    }
    if (!file.commit())
        return false;
    _records = std::move(records);
    _end = end;
    _path = target;
    _mustRewrite = false;
    stampFile();
    return true;
}

bool PointFile::write(const std::string& name, const PixelList& points) {
    const Head head = headOf(name, static_cast<std::uint32_t>(points.size()));
    const std::vector<char> bytes = bytesOf(points);
    const bool isWritten = std::fwrite(head.data(), 1, head.size(), _stream.get()) == head.size() &&
                           std::fwrite(bytes.data(), 1, bytes.size(), _stream.get()) == bytes.size();
    if (std::fflush(_stream.get()) == 0 && isWritten)
        return true;
    // A full disk: what was begun is taken back, and nothing more is tried.
    _stream.reset();
    _isGivenUp = true;
    static_cast<void>(::truncate(_path.c_str(), static_cast<off_t>(_end)));
    stampFile();
    return false;
}

void PointFile::stampFile() const {
    const std::array<std::timespec, 2> times{_newest, _newest};
    static_cast<void>(::utimensat(AT_FDCWD, _path.c_str(), times.data(), 0));
}

} // namespace zdt
