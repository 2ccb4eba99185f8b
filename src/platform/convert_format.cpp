// The runtime's Format: named formats first, then the pattern, which decides by its
// letters whether the value is written as a number or as a date.
#include "platform/convert_format.h"

#include <cctype>
#include <optional>
#include <string>

#include "platform/convert.h"
#include "platform/convert_dates.h"
#include "platform/convert_decimal.h"

namespace platform {
namespace {

bool SameNoCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

struct NamedFormat {
    std::string_view name;
    std::string_view pattern;
};

// Named formats that are plain patterns. The date and time ones follow the
// day/month/year order of the runtime's dates.
constexpr NamedFormat kNamedPatterns[] = {
    {"Fixed", "0.00"},
    {"Standard", "#,##0.00"},
    {"Percent", "0.00%"},
    {"Scientific", "0.00E+00"},
    {"General Date", "c"},
    {"Long Date", "dd mmmm yyyy"},
    {"Medium Date", "dd-mmm-yy"},
    {"Short Date", "dd/mm/yyyy"},
    {"Long Time", "hh:nn:ss"},
    {"Medium Time", "hh:nn AM/PM"},
    {"Short Time", "hh:nn"},
};

// The two words of Yes/No, True/False and On/Off.
std::optional<std::pair<std::string_view, std::string_view>> TwoWordFormat(std::string_view format) {
    if (SameNoCase(format, "Yes/No")) return std::pair{"Yes", "No"};
    if (SameNoCase(format, "True/False")) return std::pair{"True", "False"};
    if (SameNoCase(format, "On/Off")) return std::pair{"On", "Off"};
    return std::nullopt;
}

// The number a value stands for, as decimal digits; nothing for text that is no number.
std::optional<detail::DecimalDigits> NumberOf(const Value& value) {
    switch (value.kind()) {
        case Value::Kind::Integer: return detail::DigitsOf(value.AsInteger());
        case Value::Kind::Text:
            if (!IsNumericText(value.AsText())) return std::nullopt;
            return detail::DigitsOf(CDbl(value));
        default: return detail::DigitsOf(CDbl(value));
    }
}

std::optional<Date> DateOf(const Value& value) {
    if (value.kind() == Value::Kind::Date) return value.AsDate();
    if (value.kind() == Value::Kind::Text && !IsNumericText(value.AsText()))
        return detail::ParseDateText(value.AsText());
    return Date{CDbl(value)};
}

}  // namespace

std::string Format(const Value& value, std::string_view format) {
    if (value.IsNull() || value.IsEmpty()) return {};
    if (format.empty()) return ToText(value);

    const bool generalNumber = SameNoCase(format, "General Number");
    const auto twoWords = TwoWordFormat(format);
    if (generalNumber || twoWords) {
        const auto number = NumberOf(value);
        if (!number) return value.AsText();
        if (generalNumber) return NumberToText(number->ToDouble());
        return std::string(number->IsZero() ? twoWords->second : twoWords->first);
    }

    std::string_view pattern = format;
    for (const NamedFormat& named : kNamedPatterns)
        if (SameNoCase(format, named.name)) pattern = named.pattern;

    if (detail::IsDatePattern(pattern)) {
        const auto date = DateOf(value);
        if (!date) return value.AsText();
        return detail::FormatDatePattern(*date, pattern);
    }
    const auto number = NumberOf(value);
    if (!number) return value.AsText();
    return detail::FormatNumberPattern(*number, pattern);
}

}  // namespace platform
