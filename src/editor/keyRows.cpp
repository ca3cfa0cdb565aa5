#include "editor/keyRows.h"

#include "editor/keyWalk.h"
#include "editor/moduleWords.h"
#include "model/resNode.h"
#include "store/themeResource.h"
#include "support/fileComparison.h"

#include <algorithm>

namespace zdt {

namespace {

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
    return keyText(joinKeyPath(block), name, number);
}

std::string keyText(const std::string& block, const std::string& name, int number) {
    const std::string text = block + "/" + name;
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
    std::vector<std::string> modules;
    for (const KeyRow& row : rows) {
        if (std::find(modules.begin(), modules.end(), row.module) == modules.end())
            modules.push_back(row.module);
    }
    std::stable_sort(modules.begin(), modules.end(), [](const std::string& one, const std::string& other) {
        return placeOfModule(one) < placeOfModule(other);
    });
    return modules;
}

} // namespace zdt
