// Date helpers shared by the conversions and Format.
#pragma once

#include <optional>
#include <string_view>

#include "platform/value.h"

namespace platform::detail {

// The serial of a calendar day (no two-digit years, no carrying of months).
double SerialOfDay(int year, int month, int day);
// 1 for Sunday to 7 for Saturday, as the runtime's Weekday.
int WeekdayOf(Date date);
// 1 for the first of January.
int DayOfYear(Date date);
// A date written as the database writes it ("YYYY-MM-DD[ HH:MM:SS]") or as the
// runtime shows it ("dd/mm/yyyy[ hh:mm:ss]").
std::optional<Date> ParseDateText(std::string_view text);

}  // namespace platform::detail
