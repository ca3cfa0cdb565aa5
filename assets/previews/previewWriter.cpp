#include "assets/previews/previewWriter.h"

#include "assets/art/picture.h"
#include "assets/art/pictureFile.h"
#include "assets/lock/lockPainter.h"
#include "assets/previews/homePages.h"
#include "assets/previews/moduleScreens.h"
#include "assets/previews/phoneParts.h"
#include "assets/previews/smallIcons.h"
#include "model/fileResNode.h"

#include <algorithm>
#include <array>

namespace zdt::assets {

namespace {

QImage paintLock(const PreviewSource& source, QSize size) {
    return paintLockScreen(source.templateDirectory, size, source.generation, phoneScene());
}

/// A picture is painted, or is a screen of an application.
struct PreviewRow {
    std::string_view name;
    QImage (*paint)(const PreviewSource&, QSize) = nullptr;
    std::string_view module = {};
    std::string_view screen = {};
    TypeMask absentFrom = 0;
};

constexpr TypeMask only9 = typeMask::generation5 | typeMask::generation8;

constexpr auto previewTable = std::to_array<PreviewRow>({
    {"cover.jpg", paintLock},
    {"icon_small.jpg", paintSmallIcon},
    {"icon_small_1.jpg", paintSmallIcon},
    {"preview_contacts_0.jpg", nullptr, "contacts", "dial"},
    {"preview_contacts_1.jpg", nullptr, "contacts", "contact list", only9},
    {"preview_contacts_2.jpg", nullptr, "contacts", "contact details", only9},
    {"preview_icons_0.jpg", paintIconsPage},
    {"preview_mms_0.jpg", nullptr, "mms", "MMS"},
    {"preview_systemui_0.jpg", nullptr, "systemui", "drop down notification"},
    {"preview_unlock_0.jpg", paintLock},
    {"preview_widget_0.jpg", paintWidgetPage},
});

bool isOf(const PreviewRow& row, const Generation& generation) {
    return (row.absentFrom & generation.bit()) == 0;
}

constexpr const char* program = "zdt_previews";

bool writePreview(const PreviewSource& source, const std::string& name) {
    const std::string path = source.templateDirectory + "preview/" + name;
    return writePicture(path, drawPreview(source, name), program);
}

} // namespace

std::vector<std::string> previewNames(const Generation& generation) {
    std::vector<std::string> names;
    for (const PreviewRow& row : previewTable) {
        if (isOf(row, generation))
            names.emplace_back(row.name);
    }
    return names;
}

QByteArray drawPreview(const PreviewSource& source, std::string_view name) {
    const auto row = std::ranges::find(previewTable, name, &PreviewRow::name);
    if (row == previewTable.end() || !isOf(*row, source.generation))
        return {};
    const SizeRange range = previewSize(std::string(name), !hasKeys(source.generation));
    const QSize size(static_cast<int>(range.minWidth), static_cast<int>(range.minHeight));
    const QImage picture = row->paint ? row->paint(source, size) : composeScreen(source, row->module, row->screen);
    return picture.size() == size ? encodeJpeg(picture, previewMaxBytes) : QByteArray();
}

bool writePreviews(const std::string& templates, const std::string& skin) {
    PreviewStore store(templates, skin);
    for (const Generation& generation : generations) {
        const auto theme = store.makeTheme(generation);
        if (!theme)
            return complain(std::string(generation.version), program);
        const PreviewSource source = store.source(*theme, generation);
        if (!std::ranges::all_of(previewNames(generation),
                                 [&](const std::string& name) { return writePreview(source, name); }))
            return false;
    }
    return true;
}

} // namespace zdt::assets
