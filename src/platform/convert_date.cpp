// Dates as the runtime held them: a day number counted from 1899-12-30 with the time
// of day as the fraction. Before that day the serial is negative but the fraction
// still counts forward from midnight: -1.25 is 1899-12-29 06:00.
#include <cmath>
#include <cstdio>
#include <string>

#include "platform/convert.h"
#include "platform/convert_dates.h"
#include "platform/runtime_error.h"

namespace platform {
namespace {

constexpr int kSecondsPerDay = 86400;
// The runtime's calendar ran from 100-01-01 to 9999-12-31.
constexpr double kFirstDay = -657434;
constexpr double kLastDay = 2958465;
// Days from 1970-01-01 to 1899-12-30.
constexpr long kEpochOffset = -25569;

// Days since 1970-01-01 of a proleptic Gregorian date (H. Hinnant's algorithm).
long DaysFromCivil(long year, int month, int day) {
    year -= month <= 2;
    const long era = (year >= 0 ? year : year - 399) / 400;
    const long yearOfEra = year - era * 400;
    const long dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const long dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

void CivilFromDays(long days, int& year, int& month, int& day) {
    days += 719468;
    const long era = (days >= 0 ? days : days - 146096) / 146097;
    const long dayOfEra = days - era * 146097;
    const long yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long shiftedMonth = (5 * dayOfYear + 2) / 153;
    day = static_cast<int>(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1);
    month = static_cast<int>(shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9);
    year = static_cast<int>(yearOfEra + era * 400 + (month <= 2));
}

long FloorDiv(long a, long b) { return a / b - ((a % b != 0) && ((a < 0) != (b < 0))); }

// Joins a day number and a time of day into the runtime's serial.
double Compose(long dayNumber, long secondsOfDay) {
    const double fraction = static_cast<double>(secondsOfDay) / kSecondsPerDay;
    return dayNumber >= 0 ? static_cast<double>(dayNumber) + fraction : static_cast<double>(dayNumber) - fraction;
}

// A day number from year, month and day, carrying months past 12 and days past the
// month's end as the runtime's DateSerial did.
long DayNumberOf(long year, long month, long day) {
    year += FloorDiv(month - 1, 12);
    month = month - 1 - FloorDiv(month - 1, 12) * 12 + 1;
    return DaysFromCivil(year, static_cast<int>(month), 1) - kEpochOffset + (day - 1);
}

void CheckInCalendar(double dayNumber) {
    if (dayNumber < kFirstDay || dayNumber > kLastDay) throw RuntimeError(err::InvalidCall);
}

int TwoDigits(std::string_view text, std::size_t at) {
    if (at + 2 > text.size()) return -1;
    const char a = text[at], b = text[at + 1];
    if (a < '0' || a > '9' || b < '0' || b > '9') return -1;
    return (a - '0') * 10 + (b - '0');
}

bool ValidDay(int year, int month, int day) {
    if (year < 100 || year > 9999 || month < 1 || month > 12 || day < 1) return false;
    static const int kDaysIn[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return day <= kDaysIn[month - 1] + (month == 2 && leap);
}

// "HH:MM:SS" with an optional fraction of a second at `at`; false when malformed.
bool ParseTime(std::string_view text, std::size_t at, long& seconds) {
    const int hour = TwoDigits(text, at), minute = TwoDigits(text, at + 3), second = TwoDigits(text, at + 6);
    if (text.size() < at + 8 || text[at + 2] != ':' || text[at + 5] != ':') return false;
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) return false;
    double fraction = 0;
    std::size_t end = at + 8;
    if (end < text.size() && text[end] == '.') {
        double scale = 0.1;
        for (++end; end < text.size() && text[end] >= '0' && text[end] <= '9'; ++end, scale /= 10)
            fraction += (text[end] - '0') * scale;
    }
    if (end != text.size()) return false;
    seconds = hour * 3600L + minute * 60L + second + std::lround(fraction);
    return true;
}

std::optional<Date> DateFrom(int year, int month, int day, long seconds) {
    if (!ValidDay(year, month, day)) return std::nullopt;
    const long dayNumber = DaysFromCivil(year, month, day) - kEpochOffset + FloorDiv(seconds, kSecondsPerDay);
    return Date{Compose(dayNumber, seconds % kSecondsPerDay)};
}

}  // namespace

namespace detail {

double SerialOfDay(int year, int month, int day) {
    return static_cast<double>(DaysFromCivil(year, month, day) - kEpochOffset);
}

int WeekdayOf(Date date) {
    // 1899-12-30 was a Saturday (7).
    const long dayNumber = static_cast<long>(DateOnly(date).serial);
    return static_cast<int>(((dayNumber % 7) + 7 + 6) % 7) + 1;
}

int DayOfYear(Date date) {
    const DateParts parts = SplitDate(date);
    return static_cast<int>(SerialOfDay(parts.year, parts.month, parts.day) - SerialOfDay(parts.year, 1, 1)) + 1;
}

std::optional<Date> ParseDateText(std::string_view text) {
    if (auto iso = ParseIsoDate(text)) return iso;
    // dd/mm/yyyy, the day and month of one or two digits
    int numbers[3] = {0, 0, 0};
    std::size_t at = 0;
    for (int part = 0; part < 3; ++part) {
        const std::size_t from = at;
        while (at < text.size() && text[at] >= '0' && text[at] <= '9' && at - from < 4)
            numbers[part] = numbers[part] * 10 + (text[at++] - '0');
        const std::size_t length = at - from;
        if (length == 0 || (part < 2 && length > 2) || (part == 2 && length != 4)) return std::nullopt;
        if (part < 2) {
            if (at >= text.size() || text[at] != '/') return std::nullopt;
            ++at;
        }
    }
    long seconds = 0;
    if (at < text.size()) {
        if (text[at] != ' ' || !ParseTime(text, at + 1, seconds)) return std::nullopt;
    }
    return DateFrom(numbers[2], numbers[1], numbers[0], seconds);
}

}  // namespace detail

Date DateSerial(int year, int month, int day) { return DateTime(year, month, day, 0, 0, 0); }

Date DateTime(int year, int month, int day, int hour, int minute, int second) {
    // Two-digit years as the runtime read them: 0-29 this century, 30-99 the last.
    if (year >= 0 && year <= 29)
        year += 2000;
    else if (year >= 30 && year <= 99)
        year += 1900;
    const long totalSeconds = hour * 3600L + minute * 60L + second;
    const long dayNumber = DayNumberOf(year, month, day) + FloorDiv(totalSeconds, kSecondsPerDay);
    CheckInCalendar(static_cast<double>(dayNumber));
    return Date{Compose(dayNumber, totalSeconds - FloorDiv(totalSeconds, kSecondsPerDay) * kSecondsPerDay)};
}

DateParts SplitDate(Date date) {
    if (!std::isfinite(date.serial) || date.serial < kFirstDay - 1 || date.serial > kLastDay + 1)
        throw RuntimeError(err::Overflow);
    long dayNumber = static_cast<long>(std::trunc(date.serial));
    long seconds = std::lround(std::fabs(date.serial - static_cast<double>(dayNumber)) * kSecondsPerDay);
    // A time that rounds up to midnight is the start of the next day.
    if (seconds >= kSecondsPerDay) {
        seconds -= kSecondsPerDay;
        ++dayNumber;
    }
    if (dayNumber < kFirstDay || dayNumber > kLastDay) throw RuntimeError(err::Overflow);
    DateParts parts{};
    CivilFromDays(dayNumber + kEpochOffset, parts.year, parts.month, parts.day);
    parts.hour = static_cast<int>(seconds / 3600);
    parts.minute = static_cast<int>(seconds / 60 % 60);
    parts.second = static_cast<int>(seconds % 60);
    return parts;
}

Date DateOnly(Date date) {
    const DateParts parts = SplitDate(date);
    return Date{detail::SerialOfDay(parts.year, parts.month, parts.day)};
}

Date DayEndOf(Date date) {
    const long dayNumber = static_cast<long>(DateOnly(date).serial);
    return Date{Compose(dayNumber, kSecondsPerDay - 1)};
}

std::string DateToIso(Date date) {
    const DateParts p = SplitDate(date);
    char buffer[32];
    if (p.hour == 0 && p.minute == 0 && p.second == 0)
        std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d", p.year, p.month, p.day);
    else
        std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d %02d:%02d:%02d", p.year, p.month, p.day, p.hour, p.minute,
                      p.second);
    return buffer;
}

std::optional<Date> ParseIsoDate(std::string_view text) {
    if (text.size() < 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    const int high = TwoDigits(text, 0), low = TwoDigits(text, 2);
    const int month = TwoDigits(text, 5), day = TwoDigits(text, 8);
    if (high < 0 || low < 0 || month < 0 || day < 0) return std::nullopt;
    long seconds = 0;
    if (text.size() > 10) {
        if ((text[10] != ' ' && text[10] != 'T') || !ParseTime(text, 11, seconds)) return std::nullopt;
    }
    return DateFrom(high * 100 + low, month, day, seconds);
}

std::string DateToText(Date date) {
    const DateParts p = SplitDate(date);
    char buffer[32];
    if (p.hour == 0 && p.minute == 0 && p.second == 0)
        std::snprintf(buffer, sizeof buffer, "%02d/%02d/%04d", p.day, p.month, p.year);
    else
        std::snprintf(buffer, sizeof buffer, "%02d/%02d/%04d %02d:%02d:%02d", p.day, p.month, p.year, p.hour, p.minute,
                      p.second);
    return buffer;
}

}  // namespace platform
