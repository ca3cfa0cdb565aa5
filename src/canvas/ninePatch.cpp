#include "canvas/ninePatch.h"

#include "canvas/scaledPictures.h"
#include "packaging/pictureConversion.h"
#include "support/plainFile.h"

#include <QPainter>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>

namespace zdt {

namespace {

constexpr QRgb guideColour = 0xff000000;

/// A chunk's head: the length of its content and its type, both of 4 bytes; a checksum follows the content.
constexpr std::uint64_t chunkHead = 8;
constexpr std::uint64_t chunkTail = 4;
constexpr std::uint64_t signatureSize = 8;
constexpr int maxChunks = 1000;
/// Before the stretched parts' numbers: a mark, three counts, and 28 bytes that tell of content and of places.
constexpr std::size_t patchHead = 32;
/// Three counts of one byte for numbers of four.
constexpr std::size_t maxPatchBytes = patchHead + std::size_t{3} * 255 * 4;

struct Runs {
    std::vector<StretchRun> across;
    std::vector<StretchRun> down;
};

/// The content of the chunk that a compiled nine-patch has before its pixels; empty if there is none.
std::vector<std::uint8_t> patchChunk(const std::string& path) {
    const PlainFile file(path);
    std::uint64_t at = signatureSize;
    for (int count = 0; count < maxChunks; ++count) {
        std::array<std::uint8_t, chunkHead> head{};
        if (file.read(at, head.data(), head.size()) != head.size())
            return {};
        const std::uint64_t length = qFromBigEndian<quint32>(head.data());
        if (std::memcmp(head.data() + 4, "IDAT", 4) == 0)
            return {};
        if (std::memcmp(head.data() + 4, "npTc", 4) == 0 && length <= maxPatchBytes) {
            std::vector<std::uint8_t> content(length);
            return file.read(at + chunkHead, content.data(), length) == length ? content : std::vector<std::uint8_t>();
        }
        at += chunkHead + length + chunkTail;
    }
    return {};
}

/// Pairs of a first and an end, from the smallest on. Nothing if they aren't such, or leave the picture.
std::optional<std::vector<StretchRun>> runsOf(const std::uint8_t* numbers, std::size_t count, int side) {
    std::vector<StretchRun> runs;
    int before = 0;
    for (std::size_t i = 0; i + 1 < count; i += 2) {
        const auto start = qFromBigEndian<qint32>(numbers + i * 4);
        const auto end = qFromBigEndian<qint32>(numbers + i * 4 + 4);
        if (start < before || end < start || end > side)
            return std::nullopt;
        if (end > start)
            runs.push_back({start, end - start});
        before = end;
    }
    return runs;
}

std::optional<Runs> compiledRuns(const std::vector<std::uint8_t>& chunk, const QSize& size) {
    if (chunk.size() < patchHead)
        return std::nullopt;
    const std::size_t across = chunk[1];
    const std::size_t down = chunk[2];
    if (chunk.size() < patchHead + (across + down) * 4 || across % 2 != 0 || down % 2 != 0)
        return std::nullopt;
    const auto columns = runsOf(chunk.data() + patchHead, across, size.width());
    const auto rows = runsOf(chunk.data() + patchHead + across * 4, down, size.height());
    if (!columns || !rows)
        return std::nullopt;
    return Runs{*columns, *rows};
}

/// The runs of black pixels among `count` that `pixel` gives; nothing if there are others that aren't transparent.
template <typename Pixel>
std::optional<std::vector<StretchRun>> guideRuns(int count, const Pixel& pixel) {
    std::vector<StretchRun> runs;
    for (int i = 0; i < count; ++i) {
        const QRgb colour = pixel(i);
        if (colour == guideColour) {
            if (!runs.empty() && runs.back().start + runs.back().length == i)
                ++runs.back().length;
            else
                runs.push_back({i, 1});
        } else if (qAlpha(colour) != 0) {
            return std::nullopt;
        }
    }
    return runs;
}

/// What the guide lines say; nothing if the edge isn't one of guide lines.
std::optional<Runs> drawnRuns(const QImage& picture) {
    if (picture.width() < 3 || picture.height() < 3)
        return std::nullopt;
    const auto columns = guideRuns(picture.width() - 2, [&](int x) { return picture.pixel(x + 1, 0); });
    const auto rows = guideRuns(picture.height() - 2, [&](int y) { return picture.pixel(0, y + 1); });
    if (!columns || !rows || (columns->empty() && rows->empty()))
        return std::nullopt;
    return Runs{*columns, *rows};
}

/// A piece of an axis: where it lies in the picture and where it is drawn.
struct Piece {
    int from;
    int length;
    int to = 0;
    int drawn = 0;
    bool isStretched;
};

std::vector<Piece> piecesOf(const std::vector<StretchRun>& runs, int side) {
    std::vector<Piece> pieces;
    int at = 0;
    for (const StretchRun& run : runs) {
        if (run.start > at)
            pieces.push_back({.from = at, .length = run.start - at, .isStretched = false});
        pieces.push_back({.from = run.start, .length = run.length, .isStretched = true});
        at = run.start + run.length;
    }
    if (at < side)
        pieces.push_back({.from = at, .length = side - at, .isStretched = runs.empty()});
    return pieces;
}

void placePieces(std::vector<Piece>& pieces, int wanted) {
    double fixed = 0;
    double elastic = 0;
    for (const Piece& piece : pieces)
        (piece.isStretched ? elastic : fixed) += piece.length;
    const double room = std::max(0.0, wanted - fixed);
    const double fixedScale = elastic == 0 || fixed > wanted ? wanted / fixed : 1;
    double at = 0;
    for (Piece& piece : pieces) {
        const double end = at + piece.length * (piece.isStretched ? room / elastic : fixedScale);
        piece.to = qRound(at);
        piece.drawn = qRound(end) - piece.to;
        at = end;
    }
}

std::vector<Piece> placedPieces(const std::vector<StretchRun>& runs, int side, int wanted) {
    std::vector<Piece> pieces = piecesOf(runs, side);
    placePieces(pieces, wanted);
    return pieces;
}

} // namespace

bool hasNinePatchName(std::string_view file) {
    return file.ends_with(".9.png");
}

NinePatch readNinePatch(const std::string& file) {
    const QImage picture = loadPicture(file);
    if (picture.isNull())
        return {};
    const std::vector<std::uint8_t> chunk = patchChunk(file);
    if (const auto runs = compiledRuns(chunk, picture.size()))
        return {paintable(picture), runs->across, runs->down};
    const auto runs = chunk.empty() ? drawnRuns(picture) : std::nullopt;
    if (!runs)
        return {paintable(picture), {}, {}};
    return {paintable(picture.copy(picture.rect().adjusted(1, 1, -1, -1))), runs->across, runs->down};
}

QImage stretched(const NinePatch& patch, const QSize& size) {
    if (patch.picture.isNull() || size.isEmpty())
        return {};
    if (patch.picture.size() == size)
        return patch.picture;
    QImage image(size, patch.picture.format());
    if (image.isNull())
        return image;
    image.fill(0);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const std::vector<Piece> columns = placedPieces(patch.across, patch.picture.width(), size.width());
    for (const Piece& row : placedPieces(patch.down, patch.picture.height(), size.height())) {
        for (const Piece& column : columns) {
            if (row.drawn <= 0 || column.drawn <= 0)
                continue;
            // Cut out first, so that what lies beside a piece doesn't run into it.
            const QImage piece = patch.picture.copy(column.from, row.from, column.length, row.length);
            const QSize drawn(column.drawn, row.drawn);
            painter.drawImage(
                column.to, row.to,
                piece.size() == drawn ? piece : piece.scaled(drawn, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        }
    }
    return image;
}

} // namespace zdt
