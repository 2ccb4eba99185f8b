// Date patterns: d dd ddd dddd ddddd dddddd, w ww, m mm mmm mmmm, q, y yy yyyy,
// h hh, n nn, s ss, c, ttttt, AM/PM am/pm A/P a/p AMPM, with '/' and ':' and any
// other character standing for itself. The letters are read without regard to case;
// m and mm next to an hour or a second are minutes.
#include <cctype>
#include <cstdio>
#include <string>
#include <vector>

#include "platform/convert.h"
#include "platform/convert_dates.h"
#include "platform/convert_format.h"

namespace platform::detail {
namespace {

struct Token {
    enum class Kind {
        Literal,
        Day,
        Weekday,
        Month,
        Minute,
        Quarter,
        Year,
        Hour,
        Second,
        GeneralDate,
        LongTime,
        AmPm
    } kind;
    int count = 0;     // length of the run of letters
    std::string text;  // the literal, or the AM/PM marker as written
};

constexpr const char* kMonthNames[] = {"January", "February", "March",     "April",   "May",      "June",
                                       "July",    "August",   "September", "October", "November", "December"};
constexpr const char* kDayNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

bool StartsWithNoCase(std::string_view text, std::size_t at, std::string_view prefix) {
    if (text.size() - at < prefix.size()) return false;
    for (std::size_t i = 0; i < prefix.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(text[at + i])) !=
            std::tolower(static_cast<unsigned char>(prefix[i])))
            return false;
    return true;
}

// The AM/PM markers, longest first so that "AMPM" is not read as "A/P".
constexpr std::string_view kAmPmMarkers[] = {"AM/PM", "AMPM", "A/P"};

std::size_t AmPmMarkerAt(std::string_view pattern, std::size_t at) {
    for (std::string_view marker : kAmPmMarkers)
        if (StartsWithNoCase(pattern, at, marker)) return marker.size();
    return 0;
}

Token::Kind KindOfLetter(char letter) {
    switch (std::tolower(static_cast<unsigned char>(letter))) {
        case 'd': return Token::Kind::Day;
        case 'w': return Token::Kind::Weekday;
        case 'm': return Token::Kind::Month;
        case 'q': return Token::Kind::Quarter;
        case 'y': return Token::Kind::Year;
        case 'h': return Token::Kind::Hour;
        case 'n': return Token::Kind::Minute;
        case 's': return Token::Kind::Second;
        case 'c': return Token::Kind::GeneralDate;
        default: return Token::Kind::Literal;
    }
}

std::size_t RunLength(std::string_view pattern, std::size_t at) {
    std::size_t end = at;
    const int letter = std::tolower(static_cast<unsigned char>(pattern[at]));
    while (end < pattern.size() && std::tolower(static_cast<unsigned char>(pattern[end])) == letter) ++end;
    return end - at;
}

std::vector<Token> Tokenize(std::string_view pattern) {
    std::vector<Token> tokens;
    const auto literal = [&](char c) {
        if (!tokens.empty() && tokens.back().kind == Token::Kind::Literal)
            tokens.back().text += c;
        else
            tokens.push_back({Token::Kind::Literal, 0, std::string(1, c)});
    };
    WalkPattern(pattern, literal, [&](std::size_t i) {
        if (std::size_t marker = AmPmMarkerAt(pattern, i)) {
            tokens.push_back({Token::Kind::AmPm, 0, std::string(pattern.substr(i, marker))});
            return i + marker - 1;
        }
        const std::size_t run = RunLength(pattern, i);
        if (std::tolower(static_cast<unsigned char>(pattern[i])) == 't' && run >= 5) {
            tokens.push_back({Token::Kind::LongTime, 5, {}});
            return i + 4;
        }
        const Token::Kind kind = KindOfLetter(pattern[i]);
        if (kind == Token::Kind::Literal) {
            literal(pattern[i]);
            return i;
        }
        tokens.push_back({kind, static_cast<int>(run), {}});
        return i + run - 1;
    });
    // m and mm straight after an hour or before a second are minutes.
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        if (tokens[i].kind != Token::Kind::Month || tokens[i].count > 2) continue;
        const auto neighbour = [&](int step) -> const Token* {
            for (long j = static_cast<long>(i) + step; j >= 0 && j < static_cast<long>(tokens.size()); j += step)
                if (tokens[static_cast<std::size_t>(j)].kind != Token::Kind::Literal)
                    return &tokens[static_cast<std::size_t>(j)];
            return nullptr;
        };
        const Token* before = neighbour(-1);
        const Token* after = neighbour(1);
        if ((before && before->kind == Token::Kind::Hour) || (after && after->kind == Token::Kind::Second))
            tokens[i].kind = Token::Kind::Minute;
    }
    return tokens;
}

std::string Number(int value, int width) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%0*d", width, value);
    return buffer;
}

std::string AmPmText(const std::string& marker, bool afternoon) {
    if (marker.size() == 3) {  // A/P or a/p: one letter, in the case it was written
        const char written = afternoon ? marker[2] : marker[0];
        return std::string(1, written);
    }
    const bool upper = std::isupper(static_cast<unsigned char>(marker[0]));
    if (marker.size() == 5)  // AM/PM or am/pm
        return afternoon ? marker.substr(3, 2) : marker.substr(0, 2);
    return upper ? (afternoon ? "PM" : "AM") : (afternoon ? "pm" : "am");
}

int WeekOfYear(Date date) {
    // Week 1 holds the first of January; weeks start on Sunday.
    const DateParts parts = SplitDate(date);
    const int firstWeekday = WeekdayOf(Date{SerialOfDay(parts.year, 1, 1)});
    return (DayOfYear(date) - 1 + firstWeekday - 1) / 7 + 1;
}

}  // namespace

bool IsDatePattern(std::string_view pattern) {
    for (const Token& token : Tokenize(pattern))
        if (token.kind != Token::Kind::Literal) return true;
    return false;
}

std::string FormatDatePattern(Date date, std::string_view pattern) {
    const std::vector<Token> tokens = Tokenize(pattern);
    const DateParts p = SplitDate(date);
    bool twelveHour = false;
    for (const Token& token : tokens) twelveHour = twelveHour || token.kind == Token::Kind::AmPm;

    std::string out;
    for (const Token& token : tokens) {
        const int n = token.count;
        switch (token.kind) {
            case Token::Kind::Literal: out += token.text; break;
            case Token::Kind::Day:
                if (n <= 2)
                    out += Number(p.day, n);
                else if (n == 3)
                    out += std::string(kDayNames[WeekdayOf(date) - 1]).substr(0, 3);
                else if (n == 4)
                    out += kDayNames[WeekdayOf(date) - 1];
                else if (n == 5)
                    out += FormatDatePattern(date, "dd/mm/yyyy");
                else
                    out += FormatDatePattern(date, "dd mmmm yyyy");
                break;
            case Token::Kind::Weekday: out += n == 1 ? Number(WeekdayOf(date), 1) : Number(WeekOfYear(date), 1); break;
            case Token::Kind::Month:
                if (n <= 2)
                    out += Number(p.month, n);
                else if (n == 3)
                    out += std::string(kMonthNames[p.month - 1]).substr(0, 3);
                else
                    out += kMonthNames[p.month - 1];
                break;
            case Token::Kind::Minute: out += Number(p.minute, n >= 2 ? 2 : 1); break;
            case Token::Kind::Quarter: out += Number((p.month - 1) / 3 + 1, 1); break;
            case Token::Kind::Year:
                if (n == 1)
                    out += Number(DayOfYear(date), 1);
                else if (n == 2)
                    out += Number(p.year % 100, 2);
                else
                    out += Number(p.year, 4);
                break;
            case Token::Kind::Hour: {
                int hour = p.hour;
                if (twelveHour) hour = hour % 12 == 0 ? 12 : hour % 12;
                out += Number(hour, n >= 2 ? 2 : 1);
                break;
            }
            case Token::Kind::Second: out += Number(p.second, n >= 2 ? 2 : 1); break;
            case Token::Kind::GeneralDate: out += DateToText(date); break;
            case Token::Kind::LongTime: out += FormatDatePattern(date, "hh:nn:ss"); break;
            case Token::Kind::AmPm: out += AmPmText(token.text, p.hour >= 12); break;
        }
    }
    return out;
}

}  // namespace platform::detail
