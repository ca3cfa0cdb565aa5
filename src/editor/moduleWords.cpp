#include "editor/moduleWords.h"

#include "kit/localisation.h"
#include "modules/description.h"
#include "store/keyText.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace zdt {

namespace {

struct Module {
    std::string_view name;
    Icon icon;
};

/// As in the navigation, where the parts of the contacts stand under their word.
constexpr std::array modules{
    Module{sharedModule, Icon::Language},    Module{"launcher", Icon::Apps},
    Module{"contacts", Icon::PersonOutline}, Module{"phone", Icon::Smartphone},
    Module{"recorder", Icon::MusicNote},     Module{"telecom", Icon::PhonelinkSetup},
    Module{"mms", Icon::ChatBubbleOutline},  Module{"systemui", Icon::Tune},
    Module{"icons", Icon::GridView},         Module{"wallpaper", Icon::Wallpaper},
    Module{"unlock", Icon::LockOutline},     Module{"preview", Icon::FilterNone},
};

const Module* find(const std::string& name) {
    return std::find_if(modules.begin(), modules.end(), [&](const Module& each) { return each.name == name; });
}

bool isDescriptionField(const std::string& key) {
    return std::any_of(descriptionFields.begin(), descriptionFields.end(),
                       [&](const DescriptionField& field) { return field.key == key; });
}

} // namespace

std::string moduleOf(const std::string& key) {
    return isDescriptionField(key) ? std::string() : key.substr(0, key.find('/'));
}

std::string groupOf(const std::string& key) {
    const KeyPath path = splitKeyPath(key);
    return path.size() > 1 && path[1] == sharedModule ? std::string(sharedModule) : moduleOf(key);
}

std::size_t placeOfModule(const std::string& module) {
    return static_cast<std::size_t>(find(module) - modules.begin());
}

QString moduleWord(const std::string& module) {
    const QString name = QString::fromStdString(module);
    const QString word = name.isEmpty() ? Text("kProblems_description") : KeyedText(name);
    return word.isEmpty() ? name : word;
}

Icon moduleIcon(const std::string& module) {
    if (module.empty())
        return Icon::InfoOutline;
    const Module* known = find(module);
    return known == modules.end() ? Icon::Category : known->icon;
}

} // namespace zdt
