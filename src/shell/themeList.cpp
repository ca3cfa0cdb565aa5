#include "shell/themeList.h"

#include "store/themeLayout.h"
#include "support/files.h"
#include "support/parallel.h"
#include "support/text.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace zdt {

namespace {

std::int64_t changeOf(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? static_cast<std::int64_t>(status.st_mtim.tv_sec) : 0;
}

std::string textOf(const Description& description, const char* key) {
    const auto entry = description.find(key);
    return entry == description.end() ? std::string() : entry->second;
}

} // namespace

ThemeCard readThemeCard(const std::string& name, const std::string& root) {
    ThemeCard card;
    card.name = name;
    const Description description = ThemeResource::readDescription(name, root);
    card.title = textOf(description, "title");
    card.chineseTitle = textOf(description, "title-cn");
    try {
        const TypeMask mask = ThemeResource::readTypeMask(name, root);
        card.generation = generationIndex(mask);
        card.isBig = (mask & typeMask::bigTheme) != 0;
    } catch (const std::invalid_argument&) {
        card.generation = unknownGeneration;
        card.isReadable = false;
    }
    const std::string folder = themeFolder(storeRoot(root), name);
    const std::string cover = folder + "preview/cover.jpg";
    card.cover = isPlainFile(cover) ? cover : std::string();
    for (const std::string& path : {folder, folder + "preview/", cover, settingsFile(storeRoot(root), name)})
        card.changedAt = std::max(card.changedAt, changeOf(path));
    return card;
}

std::vector<ThemeCard> readThemeCards(const std::string& root, ThemeOrder order) {
    const std::vector<std::string> names = ThemeResource::listThemes(root);
    std::vector<ThemeCard> cards(names.size());
    static_cast<void>(parallelFor(names.size(), [&](std::size_t index) {
        cards[index] = readThemeCard(names[index], root);
        return true;
    }));
    if (order == ThemeOrder::byChange)
        std::stable_sort(cards.begin(), cards.end(),
                         [](const ThemeCard& one, const ThemeCard& other) { return one.changedAt > other.changedAt; });
    return cards;
}

bool matchesSearch(const ThemeCard& card, const std::string& text) {
    const std::string wanted = toLowerAscii(text);
    const std::array<const std::string*, 3> texts{&card.name, &card.title, &card.chineseTitle};
    return std::any_of(texts.begin(), texts.end(),
                       [&](const std::string* each) { return toLowerAscii(*each).find(wanted) != std::string::npos; });
}

std::string titlePrefix(unsigned generation) {
    constexpr std::array<const char*, generationCount> prefixes{"OVUI5.0:", "OVUI8.0:", "OVUI9.1:"};
    return generation < prefixes.size() ? prefixes[generation] : std::string();
}

NameProblem checkThemeName(const std::string& name, const std::vector<std::string>& taken) {
    constexpr std::string_view forbidden = "/\\:*?\"<>|";
    const bool isBlank = name.find_first_not_of(' ') == std::string::npos;
    if (isBlank)
        return NameProblem::empty;
    if (name.find_first_not_of('.') == std::string::npos)
        return NameProblem::onlyDots;
    if (!isXmlText(name) || name.find_first_of(forbidden) != std::string::npos ||
        name.find('\n') != std::string::npos || name.find('\t') != std::string::npos)
        return NameProblem::forbiddenSign;
    if (!isThemeName(name))
        return NameProblem::tooLong;
    return std::find(taken.begin(), taken.end(), name) != taken.end() ? NameProblem::taken : NameProblem::none;
}

} // namespace zdt
