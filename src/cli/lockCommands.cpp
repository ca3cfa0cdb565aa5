#include "cli/commands.h"
#include "lockscreen/expression.h"
#include "lockscreen/geometry.h"
#include "lockscreen/pictureNames.h"
#include "lockscreen/unlockConfigNode.h"
#include "modules/themeNode.h"
#include "support/pattern.h"

#include <algorithm>
#include <array>
#include <ostream>

/// The lock screen, and the small languages of its layout.
namespace zdt {

namespace {

const char* wordFor(ElementKind kind) {
    switch (kind) {
    case ElementKind::wallpaper:
        return "wallpaper";
    case ElementKind::decoration:
        return "decoration";
    case ElementKind::hour1:
        return "hour1";
    case ElementKind::hour2:
        return "hour2";
    case ElementKind::min1:
        return "min1";
    case ElementKind::min2:
        return "min2";
    case ElementKind::clock:
        return "clock";
    case ElementKind::text:
        return "text";
    case ElementKind::unlocker:
        return "unlocker";
    case ElementKind::music:
        return "music";
    case ElementKind::button:
        return "button";
    case ElementKind::plain:
        break;
    }
    return "plain";
}

Json describe(const LockDesign& design, const AmazingChild& element) {
    const ElementKind kind = design.kindOf(element);
    Json entry{{"name", element.name()}, {"attributes", Json::object()}, {"children", Json::array()}};
    for (const auto& [key, value] : element.attributes())
        entry["attributes"][key] = value;
    for (const auto& child : element.children())
        entry["children"].push_back(describe(design, *child));
    entry["kind"] = wordFor(kind);
    entry["resources"] = element.resources().value_or(std::vector<std::string>());
    const auto charge = chargeIndexOf(element.attribute("visible"));
    if (kind == ElementKind::decoration && charge)
        entry["charge"] = *charge;
    if (const auto* unlocker = dynamic_cast<const UnlockerData*>(&element))
        entry["unlockerKind"] = unlocker->unlockerKind();
    return entry;
}

/// The element and its children as lines, each child further in.
void addLines(const Json& element, const std::string& indent, std::vector<std::string>& lines) {
    std::string line = indent + element["kind"].get<std::string>();
    if (element.contains("charge"))
        line += " (charge " + element["charge"].dump() + ")";
    if (element.contains("unlockerKind"))
        line += " (kind " + element["unlockerKind"].dump() + ")";
    line += "\t" + element["name"].get<std::string>();
    for (const auto& [key, value] : element["attributes"].items())
        line += "\t" + key + "=" + value.get<std::string>();
    lines.push_back(std::move(line));
    for (const Json& child : element["children"])
        addLines(child, indent + "  ", lines);
}

bool isKnownType(const std::string& type) {
    constexpr std::array<std::string_view, 6> known{unlockType::slide, unlockType::magazine, unlockType::amazing,
                                                    unlockType::video, unlockType::zooking,  unlockType::custom};
    return std::find(known.begin(), known.end(), type) != known.end();
}

} // namespace

int lockCommand(const Context& context, const std::string& name) {
    const auto theme = openListed(context, name);
    const AmazingUnlockNode& node = theme->amazingNode();
    const LockDesign& design = node.design();
    const std::string type = theme->lockScreenType();
    if (node.isDamaged())
        context.err << "zdt: note: the layout is damaged and can't be read\n";
    Json elements = Json::array();
    std::vector<std::string> lines{"type: " + type, "layout: " + node.layoutName(),
                                   "screen height: " + std::to_string(node.screenHeight()),
                                   "unlock mode: " + std::to_string(design.unlockMode()),
                                   std::string("wallpaper: ") + (node.hasWallpaper() ? "yes" : "no")};
    for (const auto& element : design.elements()) {
        elements.push_back(describe(design, *element));
        addLines(elements.back(), "", lines);
    }
    context.print({{"type", type},
                   {"layout", node.layoutName()},
                   {"screenHeight", node.screenHeight()},
                   {"unlockMode", design.unlockMode()},
                   {"hasWallpaper", node.hasWallpaper()},
                   {"elements", elements}},
                  lines);
    return 0;
}

int setLockCommand(const Context& context, const std::string& name, const std::string& type) {
    requireListed(context, name);
    const ChangeLock lock(context);
    const auto theme = openListed(context, name);
    if (!isKnownType(type) && !matchesPattern(type, "[a-z][a-z0-9_]*"))
        throw Refusal(name,
                      "\"" + type + "\" is no kind of lock screen (" + std::to_string(returnCode::notAllowed) + ")");
    if (theme->setLockScreenType(type) != returnCode::success)
        throw Refusal(name, "its lock screen couldn't be written, and is as it was (" +
                                std::to_string(returnCode::copyFailed) + ")");
    if (!isKnownType(type))
        context.err << "zdt: note: " << oneLine(type) << " is no kind of lock screen that zdt knows; "
                    << "its name alone is written\n";
    return 0;
}

int evalCommand(const Context& context, const std::string& text) {
    if (tokenise(text).size() > maxExpressionTokens)
        throw Refusal(oneLine(text.substr(0, 80)),
                      "it is longer than " + std::to_string(maxExpressionTokens) + " numbers and signs");
    const std::int32_t value = calculate(text);
    context.print(Json(value), {std::to_string(value)});
    return 0;
}

int foldCommand(const Context& context, const std::string& text, std::uint32_t height) {
    context.print(foldGeometry(text, height));
    return 0;
}

int expandCommand(const Context& context, const std::string& src) {
    const std::optional<std::vector<std::string>> names = expandSource(src);
    if (!names)
        throw Refusal(src.substr(0, 80), "it is longer than " + std::to_string(maxSourceBytes) + " bytes or " +
                                             std::to_string(maxSourceTokens) + " parts, or stands for more than " +
                                             std::to_string(maxPictureNames) + " names");
    context.print(*names, *names);
    return 0;
}

} // namespace zdt
