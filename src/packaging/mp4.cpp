#include "packaging/mp4.h"

#include "support/plainFile.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace zdt {

namespace {

/// Boxes looked at in one file. A video of some minutes has about 50; boxes of 1 byte would make the walk crawl.
constexpr int maxBoxes = 100000;
constexpr std::uint32_t headerSize = 8;
constexpr std::size_t brandsSize = 32; ///< Of the buffer for the words of `ftyp`, its NUL included.
constexpr std::size_t wordSize = 4;

constexpr std::uint32_t bigEndian(const unsigned char* bytes) {
    return static_cast<std::uint32_t>(bytes[0]) << 24 | static_cast<std::uint32_t>(bytes[1]) << 16 |
           static_cast<std::uint32_t>(bytes[2]) << 8 | bytes[3];
}

/// A box's type as the number that it is read as.
constexpr std::uint32_t type(const char (&name)[wordSize + 1]) {
    std::uint32_t value = 0;
    for (std::size_t index = 0; index < wordSize; ++index)
        value = value << 8 | static_cast<unsigned char>(name[index]);
    return value;
}

struct Box {
    std::uint64_t offset = 0; ///< Of its header in the file.
    std::uint32_t size = 0;   ///< Bytes, the header included.
    std::uint32_t type = 0;
};

/// Places of the numbers that are used, in bytes from the start of their box's header.
namespace place {
constexpr std::uint32_t movieTimescale = 20;
constexpr std::uint32_t movieDuration = 24;
constexpr std::uint32_t trackWidth = 84;
constexpr std::uint32_t trackHeight = 88;
constexpr std::uint32_t handlerType = 16;
constexpr std::uint32_t sampleSize = 12;
constexpr std::uint32_t sampleCount = 16;
} // namespace place

struct Track {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t handler = 0;
    std::uint32_t sampleCount = 0;
};

std::uint32_t roundedDown(double value) {
    constexpr auto greatest = std::numeric_limits<std::uint32_t>::max();
    return value < greatest ? static_cast<std::uint32_t>(value) : greatest;
}

std::uint32_t evenPixels(std::uint32_t fixedPoint) {
    return fixedPoint >> 16 & ~1U;
}

/// Reads the boxes of one file and keeps what the result needs; of the video tracks that is the last one.
class Mp4Reader {
public:
    explicit Mp4Reader(const PlainFile& file)
        : _file(file) {}

    std::optional<Mp4Info> read();

private:
    [[nodiscard]] std::uint32_t word(const Box& box, std::uint32_t offset) const;
    [[nodiscard]] Box boxAt(std::uint64_t offset);
    template <typename Handle>
    void eachChild(const Box& container, Handle handle);

    void readTopLevel();
    void readBrands(const Box& box);
    void readMovie(const Box& box);
    void readTrack(const Box& box);
    void readMedia(const Box& box, Track& track);
    void readMediaInformation(const Box& box, Track& track);
    void readSampleTable(const Box& box, Track& track);
    void takeVideo(const Track& track);

    const PlainFile& _file;
    int _boxesLeft = maxBoxes;
    std::string _brand;
    float _seconds = 0;
    std::optional<Track> _video;
    std::uint32_t _width = 0;
    std::uint32_t _height = 0;
};

/// A number of a box; 0 where the box or the file ends before it.
std::uint32_t Mp4Reader::word(const Box& box, std::uint32_t offset) const {
    std::array<unsigned char, wordSize> bytes{};
    const bool inBox = offset + bytes.size() <= box.size;
    return inBox && _file.read(box.offset + offset, bytes.data(), bytes.size()) == bytes.size()
               ? bigEndian(bytes.data())
               : 0;
}

/// The header at an offset; a size of 0, which ends every walk, behind the file's end and when too many were read.
Box Mp4Reader::boxAt(std::uint64_t offset) {
    std::array<unsigned char, headerSize> bytes{};
    if (_boxesLeft == 0 || _file.read(offset, bytes.data(), bytes.size()) != bytes.size())
        return {offset, 0, 0};
    --_boxesLeft;
    return {offset, bigEndian(bytes.data()), bigEndian(bytes.data() + wordSize)};
}

template <typename Handle>
void Mp4Reader::eachChild(const Box& container, Handle handle) {
    for (std::uint64_t done = headerSize; done < container.size;) {
        const Box child = boxAt(container.offset + done);
        handle(child);
        if (child.size == 0)
            return;
        done += child.size;
    }
}

void Mp4Reader::readTopLevel() {
    for (std::uint64_t offset = 0; offset < _file.size();) {
        const Box box = boxAt(offset);
        const bool isNamed = box.type >> 24 != 0;
        if (box.type == type("ftyp"))
            readBrands(box);
        else if (box.type == type("moov"))
            readMovie(box);
        if (!isNamed || box.size == 0)
            return;
        offset += box.size;
    }
}

/// Takes the first of the words, major or compatible, that begins with "mp4". A list that doesn't fit is left alone.
void Mp4Reader::readBrands(const Box& box) {
    if (!_brand.empty() || box.size < headerSize || box.size >= headerSize + brandsSize)
        return;
    std::array<char, brandsSize> words{};
    if (_file.read(box.offset + headerSize, words.data(), box.size - headerSize) == 0 || words[0] == '\0')
        return;
    for (std::size_t index = 0; index < words.size() && _brand.empty(); index += wordSize) {
        if (std::memcmp(&words[index], "mp4", 3) == 0)
            _brand.assign(&words[index], ::strnlen(&words[index], wordSize));
    }
}

void Mp4Reader::readMovie(const Box& box) {
    eachChild(box, [this](const Box& child) {
        if (child.type == type("trak"))
            readTrack(child);
        if (child.type != type("mvhd"))
            return;
        const std::uint32_t timescale = word(child, place::movieTimescale);
        const std::uint32_t duration = word(child, place::movieDuration);
        _seconds = timescale == 0 ? 0 : static_cast<float>(duration) / static_cast<float>(timescale);
    });
}

void Mp4Reader::readTrack(const Box& box) {
    Track track;
    eachChild(box, [&](const Box& child) {
        if (child.type == type("tkhd")) {
            track.width = evenPixels(word(child, place::trackWidth));
            track.height = evenPixels(word(child, place::trackHeight));
        } else if (child.type == type("mdia")) {
            readMedia(child, track);
        }
    });
    takeVideo(track);
}

void Mp4Reader::readMedia(const Box& box, Track& track) {
    eachChild(box, [&](const Box& child) {
        if (child.type == type("hdlr"))
            track.handler = word(child, place::handlerType);
        else if (child.type == type("minf"))
            readMediaInformation(child, track);
    });
}

void Mp4Reader::readMediaInformation(const Box& box, Track& track) {
    eachChild(box, [&](const Box& child) {
        if (child.type == type("stbl"))
            readSampleTable(child, track);
    });
}

void Mp4Reader::readSampleTable(const Box& box, Track& track) {
    eachChild(box, [&](const Box& child) {
        if (child.type != type("stsz") && child.type != type("stz2"))
            return;
        const bool sizesDiffer = word(child, place::sampleSize) == 0;
        track.sampleCount = sizesDiffer ? word(child, place::sampleCount) : 0;
    });
}

void Mp4Reader::takeVideo(const Track& track) {
    if (track.handler != type("vide"))
        return;
    _video = track;
    if (track.width > 0 && track.height > 0) {
        _width = track.width;
        _height = track.height;
    }
}

std::optional<Mp4Info> Mp4Reader::read() {
    readTopLevel();
    if (_brand.empty() || !_video || !(_seconds > 0))
        return std::nullopt;
    Mp4Info info;
    info.brand = _brand;
    info.fileSize = roundedDown(static_cast<double>(_file.size()));
    info.durationSeconds = roundedDown(_seconds + 0.5);
    info.frameRate = roundedDown(static_cast<float>(_video->sampleCount) / _seconds + 0.5);
    info.width = _width;
    info.height = _height;
    return info;
}

} // namespace

std::optional<Mp4Info> readMp4Info(const std::string& path) {
    const PlainFile file(path);
    return Mp4Reader(file).read();
}

bool InspectMp4(const char* path, char* brandBuffer, std::size_t brandBufferSize, std::uint32_t* fileSize,
                std::uint32_t* durationSeconds, std::uint32_t* frameRate, std::uint32_t* width, std::uint32_t* height) {
    if (!path || !brandBuffer || brandBufferSize == 0 || !fileSize || !durationSeconds || !frameRate || !width ||
        !height)
        return false;
    const std::optional<Mp4Info> info = readMp4Info(path);
    if (!info)
        return false;
    brandBuffer[info->brand.copy(brandBuffer, brandBufferSize - 1)] = '\0';
    *fileSize = info->fileSize;
    *durationSeconds = info->durationSeconds;
    *frameRate = info->frameRate;
    *width = info->width;
    *height = info->height;
    return true;
}

} // namespace zdt
