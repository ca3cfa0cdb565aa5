#include "editor/exportValues.h"

#include "lockscreen/unlockConfigNode.h"
#include "model/returnCode.h"
#include "model/typeMask.h"
#include "store/themeResource.h"

#include <algorithm>
#include <map>

namespace zdt {

namespace {

using Values = std::map<std::string, std::string>;

Values valuesOf(const ExportForm& form) {
    return {{"title-cn", form.chineseName}, {"title", form.englishName},    {"author", form.developer},
            {"designer", form.designer},    {"version", fullVersion(form)}, {"briefinfo", form.summary}};
}

bool writeValues(ThemeResource& theme, const Values& values) {
    const std::map<std::string, int> codes = theme.setValues({}, values);
    const bool taken =
        std::all_of(codes.begin(), codes.end(), [](const auto& code) { return code.second == returnCode::success; });
    return taken && theme.applyNode({});
}

} // namespace

ExportForm exportFormOf(const ThemeResource& theme) {
    const auto value = [&](const char* key) { return theme.getValue({}, key); };
    ExportForm form{value("title"), value("title-cn"), value("author"), value("designer"), {}, {}, value("briefinfo")};
    form.themeVersion = themeVersionOf(value("version"));
    if (theme.version() != unknownGeneration)
        form.generation = theme.version();
    return form;
}

bool hasVideoLock(const ThemeResource& theme) {
    return theme.lockScreenType() == unlockType::video;
}

bool storeExportValues(ThemeResource& theme, const ExportForm& form) {
    if (*form.generation != theme.version() && !theme.changeGeneration(*form.generation))
        return false;
    const Values values = valuesOf(form);
    Values before;
    for (const auto& [key, value] : values)
        before[key] = theme.getValue({}, key);
    if (writeValues(theme, values))
        return true;
    static_cast<void>(theme.setValues({}, before));
    return false;
}

std::string packagePath(const std::string& folder, const ExportForm& form) {
    return folder + (folder.ends_with('/') ? "" : "/") + form.englishName + ".zdt";
}

bool hasReducedPreviews(const ThemeResource& /*theme*/) {
    return false;
}

} // namespace zdt
