#include "model/pictureSize.h"

#include "input.h"

/// The headers are read from a file of any content.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const zdt::fuzz::Scratch scratch;
    const std::string file = scratch.write("picture", zdt::fuzz::textOf(data, size));
    const bool isPng = zdt::pngSize(file) != zdt::PictureSize();
    const bool isJpeg = zdt::jpegSize(file) != zdt::PictureSize();
    ZDT_FUZZ_CHECK(!isPng || !isJpeg);
    return 0;
}
