// Calendar dates as text and as Julian day numbers.
#pragma once

#include "Today.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dbf {

// Reads YYYY-MM-DD or YYYYMMDD; false when it is neither or no day of the calendar (years 1 to 9999).
bool parseDate(std::string_view text, Date &date);
std::string compactDate(const Date &date); // YYYYMMDD
std::string shownDate(const Date &date);   // YYYY-MM-DD
// The date of a Julian day number of the Gregorian calendar; false outside the years 1 to 9999.
bool dateOfJulianDay(std::int64_t day, Date &date);

} // namespace dbf
