// Number patterns: 0 and # digit places, one point, ',' for grouping (between digit
// places) or for thousands scaling (straight after the last one), '%', E+ / E-
// exponents, and up to three sections for positive, negative and zero values.
// Rounding takes the half away from zero, on the number's 15-digit decimal form.
#include <optional>
#include <string>
#include <vector>

#include "platform/convert_format.h"

namespace platform::detail {
namespace {

struct Piece {
    enum class Kind { Literal, IntegerPlace, Point, FractionPlace, Exponent } kind;
    std::string text;  // the literal, the place's '0' or '#', or the exponent's "E+"
    int exponentMinimumDigits = 0;
};

struct NumberPattern {
    std::vector<Piece> pieces;
    bool grouping = false;
    int thousandsScale = 0;
    int percentCount = 0;
    int integerPlaces = 0;
    int fractionPlaces = 0;
    bool scientific = false;
};

bool IsPlace(char c) { return c == '0' || c == '#'; }

NumberPattern ParseNumberPattern(std::string_view section) {
    NumberPattern pattern;
    bool seenPoint = false;
    int pendingCommas = 0;
    // Index of the exponent piece once one is seen; the digit places after it are its digits.
    std::size_t exponent = 0;
    bool inExponent = false;

    const auto settleCommas = [&](bool beforeIntegerPlace) {
        if (pendingCommas == 0) return;
        if (pattern.integerPlaces > 0) {
            if (beforeIntegerPlace)
                pattern.grouping = true;
            else
                pattern.thousandsScale += pendingCommas;
        }
        pendingCommas = 0;
    };
    const auto addLiteral = [&](char c) {
        if (!seenPoint && !inExponent) settleCommas(false);
        if (!pattern.pieces.empty() && pattern.pieces.back().kind == Piece::Kind::Literal)
            pattern.pieces.back().text += c;
        else
            pattern.pieces.push_back({Piece::Kind::Literal, std::string(1, c)});
    };

    WalkPattern(section, addLiteral, [&](std::size_t i) {
        const char c = section[i];
        if (inExponent && IsPlace(c)) {
            if (c == '0') ++pattern.pieces[exponent].exponentMinimumDigits;
        } else if (IsPlace(c) && !seenPoint && !inExponent) {
            settleCommas(true);
            pattern.pieces.push_back({Piece::Kind::IntegerPlace, std::string(1, c)});
            ++pattern.integerPlaces;
        } else if (IsPlace(c)) {
            pattern.pieces.push_back({Piece::Kind::FractionPlace, std::string(1, c)});
            ++pattern.fractionPlaces;
        } else if (c == '.' && !seenPoint && !inExponent) {
            settleCommas(false);
            seenPoint = true;
            pattern.pieces.push_back({Piece::Kind::Point, "."});
        } else if (c == ',' && !inExponent) {
            // A comma after the point means nothing to the runtime.
            if (!seenPoint) ++pendingCommas;
        } else if ((c == 'E' || c == 'e') && !inExponent && i + 2 < section.size() &&
                   (section[i + 1] == '+' || section[i + 1] == '-') && IsPlace(section[i + 2])) {
            if (!seenPoint) settleCommas(false);
            pattern.pieces.push_back({Piece::Kind::Exponent, std::string(section.substr(i, 2))});
            exponent = pattern.pieces.size() - 1;
            inExponent = pattern.scientific = true;
            return i + 1;
        } else {
            if (c == '%') ++pattern.percentCount;
            addLiteral(c);
        }
        return i;
    });
    if (!seenPoint && !inExponent) settleCommas(false);
    return pattern;
}

// The digits of the integer part and the exponent's text, laid into the pattern.
std::string LayOut(const NumberPattern& pattern, std::string integerDigits, const std::string& fractionDigits,
                   const std::string& exponentText) {
    // Where zeros stop showing at the end of the fraction: '#' places drop them.
    std::vector<bool> fractionShown(static_cast<std::size_t>(pattern.fractionPlaces), true);
    {
        int index = pattern.fractionPlaces - 1;
        for (auto it = pattern.pieces.rbegin(); it != pattern.pieces.rend(); ++it) {
            if (it->kind != Piece::Kind::FractionPlace) continue;
            if (it->text != "#" || fractionDigits[static_cast<std::size_t>(index)] != '0') break;
            fractionShown[static_cast<std::size_t>(index--)] = false;
        }
    }

    // The integer part shows at least as many digits as it has places from the first '0'.
    int minimumDigits = 0;
    for (const Piece& piece : pattern.pieces) {
        if (piece.kind != Piece::Kind::IntegerPlace) continue;
        if (piece.text == "0" || minimumDigits > 0) ++minimumDigits;
    }
    if (static_cast<int>(integerDigits.size()) < minimumDigits)
        integerDigits.insert(0, static_cast<std::size_t>(minimumDigits) - integerDigits.size(), '0');
    if (pattern.grouping) {
        for (int at = static_cast<int>(integerDigits.size()) - 3; at > 0; at -= 3)
            integerDigits.insert(static_cast<std::size_t>(at), ",");
    }

    std::string out;
    int integerPlace = 0, fractionPlace = 0;
    const int integerLength = static_cast<int>(integerDigits.size());
    for (const Piece& piece : pattern.pieces) {
        switch (piece.kind) {
            case Piece::Kind::Literal: out += piece.text; break;
            case Piece::Kind::IntegerPlace: {
                if (pattern.grouping) {
                    // Grouped digits go out whole at the first place.
                    if (integerPlace++ == 0) out += integerDigits;
                    break;
                }
                // Right-aligned, one digit a place; the first place takes any surplus.
                const int fromRight = pattern.integerPlaces - 1 - integerPlace++;
                if (fromRight == pattern.integerPlaces - 1 && integerLength > pattern.integerPlaces)
                    out += integerDigits.substr(0, static_cast<std::size_t>(integerLength - pattern.integerPlaces));
                if (fromRight < integerLength)
                    out += integerDigits[static_cast<std::size_t>(integerLength - 1 - fromRight)];
                break;
            }
            case Piece::Kind::Point:
                if (pattern.integerPlaces == 0) out += integerDigits;
                out += '.';
                break;
            case Piece::Kind::FractionPlace:
                if (fractionShown[static_cast<std::size_t>(fractionPlace)])
                    out += fractionDigits[static_cast<std::size_t>(fractionPlace)];
                ++fractionPlace;
                break;
            case Piece::Kind::Exponent: out += exponentText; break;
        }
    }
    return out;
}

std::string ExponentText(const NumberPattern& pattern, int exponent) {
    for (const Piece& piece : pattern.pieces) {
        if (piece.kind != Piece::Kind::Exponent) continue;
        std::string digits = std::to_string(exponent < 0 ? -exponent : exponent);
        if (static_cast<int>(digits.size()) < piece.exponentMinimumDigits)
            digits.insert(0, static_cast<std::size_t>(piece.exponentMinimumDigits) - digits.size(), '0');
        const char sign = exponent < 0 ? '-' : (piece.text[1] == '+' ? '+' : '\0');
        std::string text(1, piece.text[0]);
        if (sign) text += sign;
        return text + digits;
    }
    return {};
}

std::string FormatWith(const NumberPattern& pattern, DecimalDigits number) {
    if (!number.IsZero()) number.pointPosition += 2 * pattern.percentCount - 3 * pattern.thousandsScale;
    if (!pattern.scientific) {
        const DecimalDigits rounded = RoundDigits(number, pattern.fractionPlaces, TieRule::AwayFromZero);
        return LayOut(pattern, rounded.IntegerDigits(), rounded.FractionDigits(pattern.fractionPlaces), {});
    }
    const int integerPlaces = pattern.integerPlaces > 0 ? pattern.integerPlaces : 1;
    int exponent = 0;
    if (!number.IsZero()) {
        number = RoundSignificant(number, integerPlaces + pattern.fractionPlaces, TieRule::AwayFromZero);
        exponent = number.pointPosition - integerPlaces;
        number.pointPosition = integerPlaces;
    }
    return LayOut(pattern, number.IntegerDigits(), number.FractionDigits(pattern.fractionPlaces),
                  ExponentText(pattern, exponent));
}

std::vector<std::string_view> SplitSections(std::string_view pattern) {
    std::vector<std::string_view> sections;
    std::size_t from = 0;
    WalkPattern(
        pattern, [](char) {},
        [&](std::size_t i) {
            if (pattern[i] == ';') {
                sections.push_back(pattern.substr(from, i - from));
                from = i + 1;
            }
            return i;
        });
    sections.push_back(pattern.substr(from));
    return sections;
}

}  // namespace

std::string FormatNumberPattern(const DecimalDigits& number, std::string_view pattern) {
    const auto sections = SplitSections(pattern);
    // An empty section borrows the first, as the runtime did.
    const auto section = [&](std::size_t index) {
        return index < sections.size() && !sections[index].empty() ? std::optional(sections[index]) : std::nullopt;
    };
    DecimalDigits magnitude = number;
    magnitude.negative = false;
    if (number.IsZero()) {
        if (auto zero = section(2)) return FormatWith(ParseNumberPattern(*zero), magnitude);
        return FormatWith(ParseNumberPattern(sections[0]), magnitude);
    }
    if (number.negative) {
        // The negative section carries its own sign, if it wants one.
        if (auto negative = section(1)) return FormatWith(ParseNumberPattern(*negative), magnitude);
        return "-" + FormatWith(ParseNumberPattern(sections[0]), magnitude);
    }
    return FormatWith(ParseNumberPattern(sections[0]), magnitude);
}

}  // namespace platform::detail
