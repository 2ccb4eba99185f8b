// The runtime's string functions on UTF-8 text.
#include <string>

#include "platform/convert.h"

namespace platform {

// Trim and its kin strip spaces only: the runtime left tabs and line ends alone.
std::string LTrim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string() : std::string(text.substr(first));
}

std::string RTrim(std::string_view text) {
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string() : std::string(text.substr(0, last + 1));
}

std::string Trim(std::string_view text) { return LTrim(RTrim(text)); }

namespace {

// Letters of the Latin-1 block are two bytes in UTF-8, C3 80..C3 BE; the capitals
// lie 0x20 below the small letters, as in ASCII. The multiplication and division
// signs sit in the middle of the ranges and are not letters.
constexpr unsigned char kLatinLead = 0xC3;
constexpr unsigned char kLatinCapitalFirst = 0x80, kLatinCapitalLast = 0x9E, kTimesSign = 0x97;
constexpr unsigned char kLatinSmallFirst = 0xA0, kLatinSmallLast = 0xBE, kDivisionSign = 0xB7;

template <bool ToUpper>
std::string ChangeCase(std::string_view text) {
    std::string result(text);
    for (std::size_t i = 0; i < result.size(); ++i) {
        auto c = static_cast<unsigned char>(result[i]);
        if constexpr (ToUpper) {
            if (c >= 'a' && c <= 'z') result[i] = static_cast<char>(c - 0x20);
        } else {
            if (c >= 'A' && c <= 'Z') result[i] = static_cast<char>(c + 0x20);
        }
        if (c == kLatinLead && i + 1 < result.size()) {
            auto next = static_cast<unsigned char>(result[i + 1]);
            if (ToUpper && next >= kLatinSmallFirst && next <= kLatinSmallLast && next != kDivisionSign)
                result[i + 1] = static_cast<char>(next - 0x20);
            if (!ToUpper && next >= kLatinCapitalFirst && next <= kLatinCapitalLast && next != kTimesSign)
                result[i + 1] = static_cast<char>(next + 0x20);
            ++i;
        }
    }
    return result;
}

}  // namespace

std::string UCase(std::string_view text) { return ChangeCase<true>(text); }
std::string LCase(std::string_view text) { return ChangeCase<false>(text); }

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
    if (text.empty()) return {};
    // An empty separator leaves the text whole, as the runtime did.
    if (separator.empty()) return {std::string(text)};
    std::vector<std::string> pieces;
    std::size_t from = 0;
    for (std::size_t at = text.find(separator); at != std::string_view::npos; at = text.find(separator, from)) {
        pieces.emplace_back(text.substr(from, at - from));
        from = at + separator.size();
    }
    pieces.emplace_back(text.substr(from));
    return pieces;
}

std::string Replace(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty()) return std::string(text);
    std::string result;
    std::size_t from = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what, from)) {
        result.append(text.substr(from, at - from)).append(with);
        from = at + what.size();
    }
    result.append(text.substr(from));
    return result;
}

}  // namespace platform
