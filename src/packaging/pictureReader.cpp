#include "packaging/pictureReader.h"

#include <algorithm>
#include <array>

namespace zdt {

namespace {

/// The formats that a theme's pictures come in. Other plugins of the library, if there are any, aren't let near them.
constexpr std::array<const char*, 3> knownFormats{"png", "jpeg", "gif"};

} // namespace

PictureReader::PictureReader(const std::string& path)
    : _file(path) {
    if (!_file.isOpen() || !_device.open(_file.descriptor(), QIODevice::ReadOnly, QFileDevice::DontCloseHandle))
        return;
    _reader.setDevice(&_device);
    _reader.setDecideFormatFromContent(true);
    const QByteArray format = _reader.format();
    if (std::find(knownFormats.begin(), knownFormats.end(), format) == knownFormats.end())
        return;
    _format = format;
    if (const QSize size = _reader.size(); !size.isEmpty())
        _size = size;
}

int PictureReader::gifFrameCount() {
    return _format == "gif" ? std::max(_reader.imageCount(), 0) : 0;
}

void PictureReader::shrinkInto(const QSize& bounds) {
    if (_size.width() > bounds.width() || _size.height() > bounds.height())
        _reader.setScaledSize(_size.scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1}));
}

QImage PictureReader::read() {
    const std::int64_t pixels = static_cast<std::int64_t>(_size.width()) * _size.height();
    return _format.isEmpty() || pixels > maxPicturePixels ? QImage() : _reader.read();
}

} // namespace zdt
