#include "assets/lock/lockScene.h"

#include "lockscreen/pictureNames.h"
#include "model/fileResNode.h"

#include <utility>
#include <vector>

namespace zdt::assets {

namespace {

/// "2 new messages", "1 new message"
QString counted(int count, const QString& what) {
    return QString("%1 %2%3").arg(count).arg(what, count == 1 ? "" : "s");
}

/// A part of a `src` as the text in quotes that it stands for.
std::string literalOf(const LockScene& scene, std::string_view token, int height) {
    const std::pair<std::string_view, int> digits[]{{"system.time.hour1", scene.hour / 10},
                                                    {"system.time.hour2", scene.hour % 10},
                                                    {"system.time.min1", scene.minute / 10},
                                                    {"system.time.min2", scene.minute % 10}};
    for (const auto& [variable, digit] : digits) {
        if (token == variable)
            return "'" + std::to_string(digit) + "'";
    }
    if (token == heightToken)
        return height == tallScreenHeight ? "'" + std::string(tallPrefix) + "'" : "''";
    return std::string(token);
}

} // namespace

QString timeText(const LockScene& scene) {
    return QString("%1:%2").arg(scene.hour, 2, 10, QChar('0')).arg(scene.minute, 2, 10, QChar('0'));
}

QString textOf(const LockScene& scene, std::string_view variable) {
    const std::pair<std::string_view, QString> texts[]{
        {"system.date", scene.date},
        {"system.time.ampm", scene.amPm},
        {"system.message.text", counted(scene.messages, "new message")},
        {"system.call.text", counted(scene.calls, "missed call")},
        {"system.charge.text", QString("Charging, %1%").arg(scene.battery)},
        {"system.ownerinfo.text", scene.ownerInfo},
    };
    for (const auto& [name, text] : texts) {
        if (variable == name)
            return text;
    }
    return {};
}

std::int64_t valueOf(const LockScene& scene, std::string_view variable) {
    const std::pair<std::string_view, int> values[]{
        {"system.time.showampm", !scene.amPm.isEmpty()},
        {"system.message.count", scene.messages},
        {"system.call.count", scene.calls},
        {"system.charge.level", scene.battery},
        {"system.charge.show", scene.isCharging},
        {"system.ownerinfo.show", !scene.ownerInfo.isEmpty()},
        {"system.music_visible", scene.showsMusic},
    };
    for (const auto& [name, value] : values) {
        if (variable == name)
            return value;
    }
    return 0;
}

std::optional<std::string> pictureAt(const LockScene& scene, std::string_view src, int height) {
    std::string literals;
    for (const std::string& token : splitSource(src))
        literals += (literals.empty() ? "" : "+") + literalOf(scene, token, height);
    const auto names = expandSource(literals);
    return names && names->size() == 1 ? names->front() : std::optional<std::string>();
}

} // namespace zdt::assets
