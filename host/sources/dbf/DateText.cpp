#include "DateText.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace dbf {
namespace {

// Julian day number of 1970-01-01.
constexpr std::int64_t kJulianEpoch = 2440588;

int numberOf(std::string_view digits) {
    int value = 0;
    for (char c : digits) {
        value = value * 10 + (c - '0');
    }
    return value;
}

std::string format(const char *pattern, const Date &date) {
    char text[40];
    std::snprintf(text, sizeof text, pattern, date.year, date.month, date.day);
    return text;
}

} // namespace

bool parseDate(std::string_view text, Date &date) {
    std::string digits(text);
    if (digits.size() == 10 && digits[4] == '-' && digits[7] == '-') {
        digits.erase(7, 1).erase(4, 1);
    }
    if (digits.size() != 8 ||
        !std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; })) {
        return false;
    }
    const std::string_view all = digits;
    date = {numberOf(all.substr(0, 4)), numberOf(all.substr(4, 2)), numberOf(all.substr(6, 2))};
    const std::chrono::year_month_day day{std::chrono::year(date.year),
                                          std::chrono::month(static_cast<unsigned>(date.month)),
                                          std::chrono::day(static_cast<unsigned>(date.day))};
    return date.year >= 1 && day.ok();
}

std::string compactDate(const Date &date) {
    return format("%04d%02d%02d", date);
}

std::string shownDate(const Date &date) {
    return format("%04d-%02d-%02d", date);
}

bool dateOfJulianDay(std::int64_t day, Date &date) {
    constexpr std::int64_t kFirst = 1721426; // 0001-01-01
    constexpr std::int64_t kLast = 5373484;  // 9999-12-31
    if (day < kFirst || day > kLast) {
        return false;
    }
    const std::chrono::year_month_day calendar{
        std::chrono::sys_days{std::chrono::days{static_cast<int>(day - kJulianEpoch)}}};
    date = {static_cast<int>(calendar.year()), static_cast<int>(static_cast<unsigned>(calendar.month())),
            static_cast<int>(static_cast<unsigned>(calendar.day()))};
    return true;
}

} // namespace dbf
