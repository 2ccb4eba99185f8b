// The old runtime's conversions, written once: every cell, label and figure of the
// screen goes through these, so they must give exactly what the runtime gave.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/value.h"

namespace platform {

// ---- numbers and text --------------------------------------------------------

// A number as the runtime wrote it: 15 significant digits, shortest form, no
// trailing zeros, "E+NN"/"E-NN" beyond the fixed range (1E+15, 1E-05), "-0" as "0".
std::string NumberToText(double value);

// Any value as text: Null and Empty give "", numbers as NumberToText, booleans
// "True"/"False", dates as DateToText.
std::string ToText(const Value& value);

// Any value as a number: Null, Empty and text that is not a number give 0; a text
// that is a number (blanks around it allowed) gives that number.
double ToNumber(const Value& value);

// True when the runtime's IsNumeric would say so.
bool IsNumeric(const Value& value);
bool IsNumericText(std::string_view text);

// The runtime's CDbl: as ToNumber, but a text that is not a number raises error 13
// and Null raises error 94 ("Invalid use of Null").
double CDbl(const Value& value);

// The leading number of a text: blanks are skipped anywhere, a sign, digits, one
// decimal point, an exponent; "&H"/"&O" prefixes; 0 when there is none.
double Val(std::string_view text);

std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);
// Cuts on the separator; an empty text gives no pieces (as the runtime's Split).
std::vector<std::string> Split(std::string_view text, std::string_view separator);
// Replace every occurrence of what by with.
std::string Replace(std::string_view text, std::string_view what, std::string_view with);

// ---- rounding and narrowing --------------------------------------------------

// Rounds to the given number of decimals, a tie going to the even neighbour, as the
// runtime's Round did.
double RoundHalfEven(double value, int decimals = 0);
// The runtime's CInt and CLng: round half to even, error 6 when out of range.
std::int16_t CInt(double value);
std::int32_t CLng(double value);
// The runtime's Int and Fix.
double Int(double value);
double Fix(double value);

// ---- dates -------------------------------------------------------------------

Date DateSerial(int year, int month, int day);
Date DateTime(int year, int month, int day, int hour, int minute, int second);
struct DateParts {
    int year, month, day, hour, minute, second;
};
DateParts SplitDate(Date date);
Date DateOnly(Date date);
Date DayEndOf(Date date);  // the day at 23:59:59
// "YYYY-MM-DD HH:MM:SS" for the database; "YYYY-MM-DD" when there is no time.
std::string DateToIso(Date date);
// Accepts "YYYY-MM-DD", "YYYY-MM-DD HH:MM:SS" and "YYYY-MM-DDTHH:MM:SS".
std::optional<Date> ParseIsoDate(std::string_view text);
// The runtime's text of a date: "dd/mm/yyyy", with " hh:mm:ss" when there is a time.
std::string DateToText(Date date);

// ---- Format ------------------------------------------------------------------

// The runtime's Format for the formats the screen uses:
//   named: "Fixed" (0.00), "Standard" (#,##0.00), "General Number", "Percent";
//   numeric patterns of 0, #, one '.', ',' grouping, e.g. "0.00", "#,##0.000", "0";
//   date patterns of d, dd, m, mm, yy, yyyy, hh, nn, ss (case-insensitive, "M" and
//   "MM" outside a time are months), e.g. "MM/YYYY", "dd/mm/yyyy".
// A text that is a number is formatted as the number; other text comes back as it is.
// Null and Empty give "".
std::string Format(const Value& value, std::string_view format);

}  // namespace platform
