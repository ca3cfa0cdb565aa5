#include "editor/previewCapture.h"

#include "editor/previewRender.h"
#include "model/fileResNode.h"
#include "model/returnCode.h"
#include "packaging/pictureConversion.h"
#include "store/themeResource.h"
#include "support/files.h"

#include <algorithm>
#include <array>

namespace zdt {

namespace {

const KeyPath previewKey{"preview"};
constexpr const char* ended = "kScreen_Capture_remind";
constexpr std::string_view oneScreenModule = "mms";
constexpr std::array<std::string_view, 3> captured{"contacts", oneScreenModule, "systemui"};
constexpr int bestQuality = 80;
constexpr int lastQuality = 20;
constexpr int qualityStep = 10;

/// What the place asks for: that of the standing node, or of one that would be made.
QSize sizeOfPlace(const ThemeResource& theme, const std::string& name) {
    const auto* node = dynamic_cast<const FileResNode*>(theme.findLeaf(previewKey, name));
    const SizeRange size = node && !node->sizeRanges().empty() ? node->sizeRanges().front()
                                                               : previewSize(name, theme.version() == generation9Index);
    return {static_cast<int>(size.minWidth), static_cast<int>(size.minHeight)};
}

int store(ThemeResource& theme, const std::string& file, const std::string& prefix, int index) {
    const std::string name = prefix + std::to_string(index) + ".jpg";
    // A refused picture would take a standing node along if it were set by its number.
    if (theme.findLeaf(previewKey, name))
        return theme.setValue(previewKey, name, file);
    std::string path;
    return theme.setPreview(file, prefix, static_cast<unsigned>(index), path);
}

/// The first quality whose file the theme takes.
bool storeByQuality(ThemeResource& theme, const QImage& picture, const std::string& file, const std::string& prefix,
                    int index) {
    for (int quality = bestQuality; quality >= lastQuality; quality -= qualityStep) {
        if (!writeJpeg(file, picture, quality))
            return false;
        const int code = store(theme, file, prefix, index);
        if (code != returnCode::wrongByteSize)
            return code == returnCode::success && theme.applyNode(previewKey);
    }
    return false;
}

} // namespace

bool hasCapture(std::string_view module) {
    return std::find(captured.begin(), captured.end(), module) != captured.end();
}

std::string captureName(std::string_view module, int index) {
    const int number = module == oneScreenModule ? 0 : index;
    return "preview_" + std::string(module) + "_" + std::to_string(number) + ".jpg";
}

PreviewCapture capturePreview(ThemeResource& theme, const std::string& workspace, std::string_view module, int index,
                              const QImage& composed) {
    if (index < 0 || composed.isNull())
        return {};
    PreviewCapture capture;
    capture.message = ended;
    const std::string name = captureName(module, index);
    const std::string file = workspace + "screencapture/" + name;
    if (!makeParent(file))
        return capture;
    const QImage picture = covering(composed, sizeOfPlace(theme, name));
    const std::string prefix = "preview_" + std::string(module) + "_";
    capture.stored = storeByQuality(theme, picture, file, prefix, module == oneScreenModule ? 0 : index);
    if (capture.stored)
        capture.file = theme.getValue(previewKey, name);
    return capture;
}

} // namespace zdt
