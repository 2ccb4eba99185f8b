#include "platform/convert_parse.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/runtime_error.h"

namespace platform::detail {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsExponentLetter(char c) { return c == 'e' || c == 'E' || c == 'd' || c == 'D'; }

double ToDoubleOrOverflow(const std::string& cleaned) {
    const double value = std::strtod(cleaned.c_str(), nullptr);
    if (std::isinf(value)) throw RuntimeError(err::Overflow);
    return value;
}

// The runtime typed an &H or &O number by its size: up to 16 bits it is an Integer,
// up to 32 bits a Long, so &HFFFF is -1 and &H10000 is 65536.
double NarrowRadixNumber(std::uint64_t value) {
    if (value <= 0xFFFFu) return static_cast<double>(static_cast<std::int16_t>(static_cast<std::uint16_t>(value)));
    if (value <= 0xFFFFFFFFu) return static_cast<double>(static_cast<std::int32_t>(static_cast<std::uint32_t>(value)));
    throw RuntimeError(err::Overflow);
}

int RadixOf(std::string_view text) {
    if (text.size() < 2 || text[0] != '&') return 0;
    if (text[1] == 'h' || text[1] == 'H') return 16;
    if (text[1] == 'o' || text[1] == 'O') return 8;
    return 0;
}

int DigitValue(char c) {
    if (IsDigit(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return 99;
}

// Reads radix digits from the start of text; `used` tells how many were taken.
std::uint64_t ReadRadixDigits(std::string_view text, int radix, std::size_t& used) {
    std::uint64_t value = 0;
    used = 0;
    while (used < text.size() && DigitValue(text[used]) < radix) {
        value = value * static_cast<unsigned>(radix) + static_cast<unsigned>(DigitValue(text[used]));
        // Anything past 32 bits overflows; stop the sum from wrapping.
        if (value > 0xFFFFFFFFull) value = 0x100000000ull;
        ++used;
    }
    return value;
}

// Reads "digits [. digits] [exp [sign] digits]" from position `at`, appending the
// parts to `cleaned`. Commas are skipped in the integer part when allowed.
struct MantissaScan {
    bool anyDigit = false;
    std::size_t end = 0;
};

MantissaScan ScanNumber(std::string_view text, std::size_t at, bool allowGrouping, std::string& cleaned) {
    MantissaScan scan;
    std::size_t i = at;
    while (i < text.size() && (IsDigit(text[i]) || (allowGrouping && text[i] == ',' && scan.anyDigit))) {
        if (text[i] != ',') {
            cleaned += text[i];
            scan.anyDigit = true;
        }
        ++i;
    }
    if (i < text.size() && text[i] == '.') {
        cleaned += '.';
        ++i;
        while (i < text.size() && IsDigit(text[i])) {
            cleaned += text[i++];
            scan.anyDigit = true;
        }
    }
    if (scan.anyDigit && i < text.size() && IsExponentLetter(text[i])) {
        std::size_t j = i + 1;
        std::string exponent = "e";
        if (j < text.size() && (text[j] == '+' || text[j] == '-')) exponent += text[j++];
        const std::size_t digitsFrom = j;
        while (j < text.size() && IsDigit(text[j])) exponent += text[j++];
        if (j > digitsFrom) {
            cleaned += exponent;
            i = j;
        }
    }
    scan.end = i;
    return scan;
}

std::string_view TrimBlanks(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && blank(text.back())) text.remove_suffix(1);
    return text;
}

}  // namespace

std::optional<double> ParseWholeNumber(std::string_view text) {
    text = TrimBlanks(text);
    if (const int radix = RadixOf(text)) {
        std::size_t used = 0;
        const std::uint64_t value = ReadRadixDigits(text.substr(2), radix, used);
        if (used == 0 || used != text.size() - 2) return std::nullopt;
        return NarrowRadixNumber(value);
    }
    std::string cleaned;
    std::size_t at = 0;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) cleaned += text[at++];
    const MantissaScan scan = ScanNumber(text, at, true, cleaned);
    if (!scan.anyDigit || scan.end != text.size()) return std::nullopt;
    return ToDoubleOrOverflow(cleaned);
}

double ParseLeadingNumber(std::string_view text) {
    std::string squeezed;
    for (char c : text)
        if (c != ' ' && c != '\t' && c != '\n') squeezed += c;
    if (const int radix = RadixOf(squeezed)) {
        std::size_t used = 0;
        const std::uint64_t value = ReadRadixDigits(std::string_view(squeezed).substr(2), radix, used);
        return used == 0 ? 0.0 : NarrowRadixNumber(value);
    }
    std::string cleaned;
    std::size_t at = 0;
    if (at < squeezed.size() && (squeezed[at] == '+' || squeezed[at] == '-')) cleaned += squeezed[at++];
    const MantissaScan scan = ScanNumber(squeezed, at, false, cleaned);
    if (!scan.anyDigit) return 0.0;
    return ToDoubleOrOverflow(cleaned);
}

}  // namespace platform::detail
