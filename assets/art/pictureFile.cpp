#include "assets/art/pictureFile.h"

#include "support/atomicFile.h"
#include "support/files.h"

#include <cstdint>
#include <cstdio>
#include <string_view>

namespace zdt::assets {

bool writePicture(const std::string& path, const QByteArray& bytes, const char* program) {
    const std::string_view content(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    constexpr std::uint64_t maxBytes = 16U << 20U;
    if (const auto present = readFile(path, maxBytes); present && !content.empty() && *present == content)
        return true;
    if (!content.empty() && makePath(path) && writeFile(path, content))
        return true;
    return complain(path, program);
}

bool complain(const std::string& path, const char* program) {
    std::fprintf(stderr, "%s: can't make %s\n", program, path.c_str());
    return false;
}

} // namespace zdt::assets
