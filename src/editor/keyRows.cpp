#include "editor/keyRows.h"

#include "editor/keyWalk.h"
#include "model/resNode.h"
#include "store/themeResource.h"
#include "support/fileComparison.h"

#include <algorithm>
#include <array>

namespace zdt {

namespace {

/// As in the navigation; what it doesn't have follows.
constexpr std::array<const char*, 12> moduleOrder{sharedModule, "launcher",  "contacts", "mms",
                                                  "systemui",   "phone",     "recorder", "telecom",
                                                  "icons",      "wallpaper", "unlock",   "preview"};

std::string comparable(const std::string& colour) {
    constexpr std::size_t withAlpha = 9;
    std::string text = colour;
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char sign) { return sign >= 'A' && sign <= 'Z' ? sign - 'A' + 'a' : sign; });
    if (text.size() == withAlpha && text.starts_with("#ff"))
        text.erase(1, 2);
    return text;
}

} // namespace

KeyPath KeyPlace::path() const {
    KeyPath whole = block;
    whole.push_back(name);
    return whole;
}

std::string KeyPlace::key() const {
    const std::string text = joinKeyPath(path());
    return number == 1 ? text : text + "#" + std::to_string(number);
}

std::vector<KeyRow> keyRowsOf(const ThemeResource& theme) {
    return theme.version() == unknownGeneration ? std::vector<KeyRow>() : KeyWalk(theme).rows();
}

void refreshRow(const ThemeResource& theme, KeyRow& row) {
    for (KeyPlace& place : row.places)
        place.value = theme.getValueNth(place.path(), place.number);
}

std::vector<std::pair<std::string, std::string>> differingCopies(const KeyRow& row) {
    std::vector<std::pair<std::string, std::string>> copies;
    bool differ = false;
    for (const KeyPlace& place : row.places) {
        differ = differ || (isFile(row.kind) ? !sameFiles(place.value, row.value())
                                             : !sameText(row.kind, place.value, row.value()));
        copies.emplace_back(place.block.front(), place.value);
    }
    if (!differ)
        copies.clear();
    return copies;
}

bool sameText(KeyKind kind, const std::string& one, const std::string& other) {
    return one == other || (kind == KeyKind::colour && comparable(one) == comparable(other));
}

std::vector<std::string> modulesOf(const std::vector<KeyRow>& rows) {
    std::vector<std::string> modules(moduleOrder.begin(), moduleOrder.end());
    for (const KeyRow& row : rows) {
        if (std::find(modules.begin(), modules.end(), row.module) == modules.end())
            modules.push_back(row.module);
    }
    std::erase_if(modules, [&](const std::string& module) {
        return std::none_of(rows.begin(), rows.end(), [&](const KeyRow& row) { return row.module == module; });
    });
    return modules;
}

} // namespace zdt
