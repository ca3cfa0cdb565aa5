#include "canvas/pointFile.h"

#include "support/atomicFile.h"
#include "support/plainFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <tuple>
#include <utility>

namespace zdt {

namespace {

constexpr std::string_view pointFileName = "ImageInfo.desc";
constexpr mode_t newFileMode = 0666;
/// How many records wait at most until all pictures are looked at, so that few are lost with a process that is killed.
constexpr std::size_t maxUnsettled = 64;

bool isOlder(const std::timespec& one, const std::timespec& other) {
    return std::tie(one.tv_sec, one.tv_nsec) < std::tie(other.tv_sec, other.tv_nsec);
}

bool isSameTime(const std::timespec& one, const std::timespec& other) {
    return !isOlder(one, other) && !isOlder(other, one);
}

/// The time of a file's last change; nothing if it isn't there.
std::optional<std::timespec> changeTime(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return status.st_mtim;
}

/// Whether a record tells of a picture as it is now.
bool isFresh(const PointIndex& index, const PointRecord& record, const std::timespec& changed) {
    return record.changed ? isSameTime(*record.changed, changed) : !isOlder(index.file.st_mtim, changed);
}

} // namespace

/// Unlocks the file at its end; one that was closed is unlocked already.
class PointFile::Lock {
public:
    explicit Lock(PointFile& file)
        : _file(file)
        , _isHeld(file.lockFile()) {}
    ~Lock() {
        if (_isHeld && _file._descriptor >= 0)
            ::flock(_file._descriptor, LOCK_UN);
    }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

    [[nodiscard]] bool isHeld() const { return _isHeld; }

private:
    PointFile& _file;
    bool _isHeld;
};

PointFile::PointFile(SkinRoots roots)
    : _roots(std::move(roots))
    , _path(_roots.workspace + std::string(skinFolderName) + std::string(pointFileName))
    , _shippedPath(_roots.program + std::string(skinFolderName) + std::string(pointFileName))
    , _own(scanPoints(PlainFile(_path))) {
    if (_shippedPath != _path)
        _shipped = scanPoints(PlainFile(_shippedPath));
}

PointFile::~PointFile() {
    if (_unsettled > 0) {
        const Lock lock(*this);
        if (lock.isHeld() && isAsRead())
            settle();
    }
    closeFile();
}

std::optional<InkMask> PointFile::find(const std::string& name, const std::string& picture, const QSize& size) const {
    const auto changed = changeTime(picture);
    const auto readIn = [&](const PointIndex& index, const std::string& path) -> std::optional<InkMask> {
        const auto found = index.records.find(name);
        if (!changed || found == index.records.end() || !isFresh(index, found->second, *changed))
            return std::nullopt;
        return readPoints(PlainFile(path), name, found->second, size);
    };
    if (auto own = readIn(_own, _path))
        return own;
    // A picture that the author put over a shipped one may well be older.
    return picture == _roots.program + name ? readIn(_shipped, _shippedPath) : std::nullopt;
}

void PointFile::append(const std::string& name, const std::string& picture, const InkMask& mask) {
    const auto changed = changeTime(picture);
    const std::uint64_t points = mask.pointCount();
    if (!changed || name.empty() || name.size() > maxPointPath || points > maxPointFileBytes || _isGivenUp)
        return;
    const Lock lock(*this);
    if (!lock.isHeld() || !prepare() ||
        _own.end + pointRecordSize(static_cast<std::uint32_t>(points)) > maxPointFileBytes)
        return;
    if (const auto found = _own.records.find(name); found != _own.records.end()) {
        static_cast<void>(killPoints(_descriptor, found->second));
        _own.records.erase(found);
    }
    write(name, *changed, mask);
    if (_unsettled >= maxUnsettled)
        settle();
}

bool PointFile::openFile() {
    const std::string target = _descriptor < 0 ? writableSkinFile(pointFileName, _roots) : std::string();
    if (!target.empty()) // A pipe would wait for its reader.
        _descriptor = ::open(target.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, newFileMode);
    struct stat status {};
    if (_descriptor >= 0 && (::fstat(_descriptor, &status) != 0 || !S_ISREG(status.st_mode)))
        closeFile();
    _isGivenUp = _isGivenUp || _descriptor < 0;
    return _descriptor >= 0;
}

void PointFile::closeFile() {
    if (const int descriptor = std::exchange(_descriptor, -1); descriptor >= 0)
        ::close(descriptor);
}

/// Locks the file that stands in the place now. False if another process writes it: nobody waits for a shape.
bool PointFile::lockFile() {
    constexpr int attempts = 3;
    for (int attempt = 0; attempt < attempts && openFile(); ++attempt) {
        if (::flock(_descriptor, LOCK_EX | LOCK_NB) != 0)
            return false;
        if (isInPlace())
            return true;
        closeFile();
    }
    return false;
}

bool PointFile::isInPlace() const {
    struct stat open {};
    struct stat placed {};
    return ::fstat(_descriptor, &open) == 0 && ::stat(_path.c_str(), &placed) == 0 && open.st_dev == placed.st_dev &&
           open.st_ino == placed.st_ino;
}

/// Whether no other process wrote the file since.
bool PointFile::isAsRead() const {
    struct stat now {};
    return ::fstat(_descriptor, &now) == 0 && now.st_dev == _own.file.st_dev && now.st_ino == _own.file.st_ino &&
           now.st_size == static_cast<off_t>(_own.end) && isSameTime(now.st_mtim, _own.file.st_mtim);
}

/// Reads the locked file again if it isn't known as it is, and leaves in it what is whole and true.
bool PointFile::prepare() {
    if (_isPrepared && isAsRead())
        return true;
    _own = scanPoints(PlainFile(_path));
    _unsettled = 0;
    const bool hasDead = dropStale() > 0 || _own.hasRest;
    _isPrepared = !hasDead || rewrite();
    _isGivenUp = !_isPrepared;
    if (_isPrepared && _own.records.empty())
        stampFile({});
    return _isPrepared;
}

/// Removes the records of pictures that were replaced or are gone, and tells how many.
std::size_t PointFile::dropStale() {
    std::size_t dropped = 0;
    for (auto entry = _own.records.begin(); entry != _own.records.end();) {
        auto& [name, record] = *entry;
        const auto changed = changeTime(resolveSkinPath(name, _roots));
        if (changed && isFresh(_own, record, *changed)) {
            record.changed = changed;
            ++entry;
            continue;
        }
        static_cast<void>(killPoints(_descriptor, record));
        entry = _own.records.erase(entry);
        ++dropped;
    }
    return dropped;
}

/// Puts a file of the records alone in the place, and locks it.
bool PointFile::rewrite() {
    const std::timespec time = _own.file.st_mtim;
    PointIndex fresh;
    AtomicFile file(_path);
    if (!file.isOpen())
        return false;
    const int descriptor = ::fileno(file.stream());
    const PlainFile source(_path);
    for (const auto& [name, record] : _own.records) {
        if (!copyPoints(source, record, descriptor, fresh.end))
            return false;
        fresh.records[name] = {fresh.end, record.count, record.changed};
        fresh.end += pointRecordSize(record.count);
    }
    const std::array<std::timespec, 2> times{time, time};
    if (::futimens(descriptor, times.data()) != 0 || !file.commit())
        return false;
    closeFile();
    _own = std::move(fresh);
    if (!lockFile() || ::fstat(_descriptor, &_own.file) != 0)
        return false;
    return _own.file.st_size == static_cast<off_t>(_own.end);
}

void PointFile::write(const std::string& name, const std::timespec& changed, const InkMask& mask) {
    const auto count = static_cast<std::uint32_t>(mask.pointCount());
    const bool isWritten = writePoints(_descriptor, _own.end, name, count, mask);
    if (isWritten) {
        _own.records[name] = {_own.end, count, changed};
        _own.end += pointRecordSize(count);
        ++_unsettled;
    } else { // A full disk: what was begun is taken back, and nothing more is tried.
        static_cast<void>(::ftruncate(_descriptor, static_cast<off_t>(_own.end)));
        _isGivenUp = true;
    }
    stampFile(_own.file.st_mtim);
}

/// Makes the file as new as the newest of its pictures. Records of those that were replaced must not become true by
/// that, and are removed first.
void PointFile::settle() {
    static_cast<void>(dropStale());
    std::timespec newest = _own.file.st_mtim;
    for (const auto& [name, record] : _own.records) {
        if (record.changed && isOlder(newest, *record.changed))
            newest = *record.changed;
    }
    stampFile(newest);
    _unsettled = 0;
}

void PointFile::stampFile(const std::timespec& time) {
    const std::array<std::timespec, 2> times{time, time};
    static_cast<void>(::futimens(_descriptor, times.data()));
    static_cast<void>(::fstat(_descriptor, &_own.file)); // Some file systems keep it less exactly.
}

} // namespace zdt
