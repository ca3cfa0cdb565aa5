#include "assets/skin/gifWriter.h"

#include <gif_lib.h>

#include <QRect>

#include <algorithm>
#include <array>
#include <string_view>

namespace zdt::assets {

namespace {

constexpr GifPixelType asBefore = 0;
constexpr int bitsPerChannel = 8;

int append(GifFileType* gif, const GifByteType* bytes, int count) {
    static_cast<QByteArray*>(gif->UserData)->append(reinterpret_cast<const char*>(bytes), count);
    return count;
}

bool putScreen(GifFileType* gif, const QImage& picture) {
    const QList<QRgb> colours = picture.colorTable();
    const int count = 1 << GifBitSize(static_cast<int>(colours.size()));
    ColorMapObject* map = GifMakeMapObject(count, nullptr);
    if (!map)
        return false;
    std::transform(colours.begin(), colours.end(), map->Colors, [](QRgb colour) {
        return GifColorType{static_cast<GifByteType>(qRed(colour)), static_cast<GifByteType>(qGreen(colour)),
                            static_cast<GifByteType>(qBlue(colour))};
    });
    EGifSetGifVersion(gif, true);
    const int result = EGifPutScreenDesc(gif, picture.width(), picture.height(), bitsPerChannel, asBefore, map);
    GifFreeMapObject(map);
    return result == GIF_OK;
}

/// The extension by which all programs know how often to repeat: 0 for ever.
bool putEndless(GifFileType* gif) {
    constexpr std::string_view name = "NETSCAPE2.0";
    constexpr std::array<GifByteType, 3> repeats{1, 0, 0};
    return EGifPutExtensionLeader(gif, APPLICATION_EXT_FUNC_CODE) == GIF_OK &&
           EGifPutExtensionBlock(gif, static_cast<int>(name.size()), name.data()) == GIF_OK &&
           EGifPutExtensionBlock(gif, static_cast<int>(repeats.size()), repeats.data()) == GIF_OK &&
           EGifPutExtensionTrailer(gif) == GIF_OK;
}

bool putTiming(GifFileType* gif, int hundredths) {
    const GraphicsControlBlock control{DISPOSE_DO_NOT, false, hundredths, asBefore};
    std::array<GifByteType, 4> bytes{};
    return EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(EGifGCBToExtension(&control, bytes.data())),
                            bytes.data()) == GIF_OK;
}

/// A row of `picture` in which 0 stands for what `before`, if there is one, has as well.
std::vector<GifPixelType> changesIn(const QImage& picture, const QImage& before, int y) {
    const uchar* row = picture.constScanLine(y);
    std::vector<GifPixelType> changes(row, row + picture.width());
    if (before.isNull())
        return changes;
    const uchar* old = before.constScanLine(y);
    for (std::size_t x = 0; x < changes.size(); ++x) {
        if (old[x] == changes[x])
            changes[x] = asBefore;
    }
    return changes;
}

/// The rectangle around all that isn't 0; a GIF has no empty ones.
QRect boundsOf(const std::vector<std::vector<GifPixelType>>& rows) {
    QRect bounds;
    for (std::size_t y = 0; y < rows.size(); ++y) {
        const auto isChange = [](GifPixelType pixel) { return pixel != asBefore; };
        const auto first = std::find_if(rows[y].begin(), rows[y].end(), isChange);
        if (first == rows[y].end())
            continue;
        const auto last = std::find_if(rows[y].rbegin(), rows[y].rend(), isChange).base() - 1;
        bounds |= QRect(QPoint(static_cast<int>(first - rows[y].begin()), static_cast<int>(y)),
                        QPoint(static_cast<int>(last - rows[y].begin()), static_cast<int>(y)));
    }
    return bounds.isEmpty() ? QRect(0, 0, 1, 1) : bounds;
}

bool putFrame(GifFileType* gif, const GifFrame& frame, const QImage& before) {
    std::vector<std::vector<GifPixelType>> rows;
    for (int y = 0; y < frame.picture.height(); ++y)
        rows.push_back(changesIn(frame.picture, before, y));
    const QRect area = boundsOf(rows);
    if (!putTiming(gif, frame.hundredths) ||
        EGifPutImageDesc(gif, area.x(), area.y(), area.width(), area.height(), false, nullptr) == GIF_ERROR)
        return false;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        if (EGifPutLine(gif, &rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(area.x())], area.width()) ==
            GIF_ERROR)
            return false;
    }
    return true;
}

bool putAll(GifFileType* gif, const std::vector<GifFrame>& frames) {
    if (!putScreen(gif, frames.front().picture) || !putEndless(gif))
        return false;
    QImage before;
    return std::all_of(frames.begin(), frames.end(), [&](const GifFrame& frame) {
        const bool put = putFrame(gif, frame, before);
        before = frame.picture;
        return put;
    });
}

} // namespace

QByteArray encodeGif(const std::vector<GifFrame>& frames) {
    QByteArray bytes;
    GifFileType* gif = frames.empty() ? nullptr : EGifOpen(&bytes, append, nullptr);
    if (!gif)
        return {};
    const bool put = putAll(gif, frames);
    return EGifCloseFile(gif, nullptr) == GIF_OK && put ? bytes : QByteArray();
}

} // namespace zdt::assets
