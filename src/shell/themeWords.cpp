#include "shell/themeWords.h"

#include "kit/localisation.h"

#include <QDateTime>
#include <QLocale>

namespace zdt {

namespace {

QString dateText(const QDate& date, int presentYear) {
    const bool isChinese = GetLanguage() == chineseLanguage;
    const QLocale locale = isChinese ? QLocale(QLocale::Chinese, QLocale::China) : QLocale(QLocale::English);
    if (isChinese)
        return locale.toString(date, date.year() == presentYear ? "M月d日" : "yyyy年M月d日");
    return locale.toString(date, date.year() == presentYear ? "d MMM" : "d MMM yyyy");
}

} // namespace

QString changeText(std::int64_t changedAt, std::int64_t now) {
    constexpr std::int64_t minute = 60;
    constexpr std::int64_t hour = 60 * minute;
    constexpr int longestInDays = 6;
    const QDate changed = QDateTime::fromSecsSinceEpoch(changedAt).date();
    const QDate today = QDateTime::fromSecsSinceEpoch(now).date();
    const std::int64_t days = changed.daysTo(today);
    const std::int64_t seconds = now - changedAt;
    // A clock that was set back leaves changes in the future.
    if (seconds < minute)
        return Text("kStart_just_now");
    if (days == 0 || seconds < hour)
        return seconds < hour ? TextWith("kStart_minutes_ago", static_cast<int>(seconds / minute))
                              : TextWith("kStart_hours_ago", static_cast<int>(seconds / hour));
    if (days == 1)
        return Text("kStart_yesterday");
    return days <= longestInDays ? TextWith("kStart_days_ago", static_cast<int>(days))
                                 : dateText(changed, today.year());
}

QString sizeText(std::uint64_t bytes) {
    constexpr double kilo = 1024;
    const double kilobytes = static_cast<double>(bytes) / kilo;
    if (kilobytes < kilo)
        return QString::number(kilobytes, 'f', 0) + " KB";
    return QString::number(kilobytes / kilo, 'f', 1) + " MB";
}

} // namespace zdt
