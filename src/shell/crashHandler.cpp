#include "shell/crashHandler.h"

#include <execinfo.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstring>

namespace zdt {

namespace {

constexpr std::array<int, 6> crashes{SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGSYS};
long secondsAheadOfUtc = 0;

/// Digits of a number, with zeros in front.
class Writer {
public:
    explicit Writer(char* place)
        : _place(place) {}
    Writer& number(long value, int digits) {
        for (int digit = digits - 1; digit >= 0; --digit, value /= 10)
            _place[digit] = static_cast<char>('0' + value % 10);
        _place += digits;
        return *this;
    }
    Writer& text(const char* text) {
        for (; *text != '\0'; ++text)
            *_place++ = *text;
        *_place = '\0';
        return *this;
    }

private:
    char* _place;
};

struct Date {
    long year = 0;
    long month = 0;
    long day = 0;
};

/// The day of the Gregorian calendar that lies so many days after 1970-01-01. Years are counted from March, so that the
/// leap day is a year's last.
Date dateOf(long days) {
    constexpr long daysToMarchOfYear0 = 719468;
    constexpr long daysIn400Years = 146097;
    const long shifted = days + daysToMarchOfYear0;
    const long era = shifted / daysIn400Years;
    const long dayOfEra = shifted % daysIn400Years;
    const long yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long monthFromMarch = (5 * dayOfYear + 2) / 153;
    const long day = dayOfYear - (153 * monthFromMarch + 2) / 5 + 1;
    const long month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    return {yearOfEra + era * 400 + (month <= 2 ? 1 : 0), month, day};
}

void write(int descriptor, const char* text) {
    // What can't be written now never will be.
    [[maybe_unused]] const ssize_t written = ::write(descriptor, text, std::strlen(text));
}

void writeDump(int signal) {
    std::array<char, dumpNameBytes> name{};
    writeDumpName(name, ::time(nullptr), secondsAheadOfUtc);
    constexpr int readableByAll = 0644;
    const int descriptor = ::open(name.data(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, readableByAll);
    if (descriptor < 0)
        return;
    std::array<char, 4> number{};
    Writer(number.data()).number(signal, 2).text("\n");
    write(descriptor, "signal ");
    write(descriptor, number.data());
    constexpr int mostFrames = 128;
    std::array<void*, mostFrames> frames{};
    ::backtrace_symbols_fd(frames.data(), ::backtrace(frames.data(), mostFrames), descriptor);
    ::close(descriptor);
}

void handleCrash(int signal) {
    writeDump(signal);
    // Installed for one time: the second one ends the process as if nobody had looked.
    ::raise(signal);
}

} // namespace

void writeDumpName(std::span<char, dumpNameBytes> name, std::time_t moment, long offset) {
    constexpr long secondsADay = 86400;
    const long local = static_cast<long>(moment) + offset;
    const Date date = dateOf(local / secondsADay);
    const long second = local % secondsADay;
    Writer(name.data())
        .number(date.year, 4)
        .text(".")
        .number(date.month, 2)
        .text(".")
        .number(date.day, 2)
        .text("_")
        .number(second / 3600, 2)
        .text(".")
        .number(second / 60 % 60, 2)
        .text(".")
        .number(second % 60, 2)
        .text(".dmp");
}

void installCrashHandler() {
    const std::time_t now = ::time(nullptr);
    std::tm local{};
    if (::localtime_r(&now, &local))
        secondsAheadOfUtc = local.tm_gmtoff;
    // The first call loads a library, which a handler must not.
    std::array<void*, 1> frame{};
    static_cast<void>(::backtrace(frame.data(), 1));
    // A stack that ran over has no room for a handler.
    static std::array<char, 65536> ownStack;
    const stack_t stack{ownStack.data(), 0, ownStack.size()};
    ::sigaltstack(&stack, nullptr);
    struct sigaction action {};
    action.sa_handler = handleCrash;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER | SA_ONSTACK);
    for (const int signal : crashes)
        ::sigaction(signal, &action, nullptr);
}

} // namespace zdt
