#include "editor/previewCatalog.h"

#include "editor/exportForm.h"
#include "model/fileResNode.h"
#include "model/typeMask.h"
#include "modules/previewNode.h"
#include "support/pattern.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace zdt {

namespace {

constexpr std::string_view drawnName = "preview_drawn";
constexpr std::string_view drawnCaption = "kExport_drawn";
constexpr std::string_view reducedCaption = "kPreview";

constexpr std::string_view contactsName = "preview_contacts";
constexpr std::array moreContacts{"preview_contacts_1.jpg", "preview_contacts_2.jpg"};

/// The module and the digits of a numbered preview; empty for any other name.
std::vector<std::string> partsOf(const std::string& name) {
    static const Pattern& pattern = Pattern::of(numberedPreviewPattern);
    std::vector<std::string> groups;
    return pattern.matches(name, groups) ? groups : std::vector<std::string>();
}

std::string numberOf(const std::string& name) {
    const std::vector<std::string> parts = partsOf(name);
    return parts.empty() ? std::string() : parts[1];
}

/// "preview_mms_2.jpg" stands before "preview_mms_10.jpg".
bool standsBefore(const std::string& first, const std::string& second) {
    const std::string one = numberOf(first);
    const std::string other = numberOf(second);
    return one.size() != other.size() ? one.size() < other.size() : first < second;
}

PreviewSection sectionOf(const std::vector<std::pair<std::string, std::string>>& pictures,
                         std::vector<std::string> names) {
    std::sort(names.begin(), names.end(), standsBefore);
    PreviewSection section;
    for (const std::string& name : names) {
        const auto found =
            std::find_if(pictures.begin(), pictures.end(), [&](const auto& each) { return each.first == name; });
        const bool isSpare = found == pictures.end();
        section.pictures.push_back({name, isSpare ? std::string() : found->second, isSpare});
    }
    return section;
}

/// With the names of those that a theme of generation 9 may have more.
std::vector<std::string> withSpare(std::vector<std::string> names, const PreviewGroup& group, unsigned generation) {
    if (names.empty() || group.name != contactsName || generation != generation9Index)
        return names;
    for (const char* more : moreContacts) {
        if (std::find(names.begin(), names.end(), more) == names.end())
            names.emplace_back(more);
    }
    return names;
}

} // namespace

std::optional<NumberedPreview> numberedPreview(const std::string& name) {
    const std::vector<std::string> parts = partsOf(name);
    unsigned number = 0;
    if (parts.empty() || std::from_chars(parts[1].data(), parts[1].data() + parts[1].size(), number).ec != std::errc())
        return std::nullopt;
    return NumberedPreview{"preview_" + parts[0] + "_", number};
}

std::vector<PreviewSection> previewSections(const std::vector<std::pair<std::string, std::string>>& pictures,
                                            unsigned generation, bool reduced) {
    std::vector<std::string> names;
    for (const auto& [name, file] : pictures)
        names.push_back(name);

    std::vector<PreviewSection> sections;
    const auto add = [&](std::vector<std::string> shown, std::string_view name, std::string_view caption, bool drawn) {
        PreviewSection section = sectionOf(pictures, std::move(shown));
        section.name = name;
        section.captionKey = caption;
        section.isDrawn = drawn;
        if (!section.pictures.empty())
            sections.push_back(std::move(section));
    };
    if (reduced) {
        add(previewsOfNoGroup(names), "preview_other", reducedCaption, false);
        return sections;
    }
    for (const PreviewGroup& group : previewGroups())
        add(withSpare(previewsOf(group, names, generation), group, generation), group.name, group.captionKey, false);
    std::erase_if(names, [](const std::string& name) { return !isProtectedPreview(name); });
    add(names, drawnName, drawnCaption, true);
    return sections;
}

std::string captionNumber(const PreviewSection& section, const std::string& name) {
    if (section.pictures.size() < 2)
        return {};
    const auto found = std::find_if(section.pictures.begin(), section.pictures.end(),
                                    [&](const PreviewPicture& each) { return each.name == name; });
    return std::to_string(found - section.pictures.begin() + 1);
}

std::vector<SectionPlace> placeSections(const std::vector<int>& counts, int columns) {
    std::vector<SectionPlace> places;
    int row = 0;
    int column = 0;
    for (const int count : counts) {
        if (column > 0 && column + count > columns) {
            ++row;
            column = 0;
        }
        const int rows = (count + columns - 1) / columns;
        places.push_back({row, column, std::min(count, columns), rows});
        row += rows - 1;
        column += rows > 1 ? columns : count;
    }
    return places;
}

} // namespace zdt
