#pragma once

namespace dbf {

struct Date {
    int year = 0;
    int month = 0; // 1 to 12
    int day = 0;   // 1 to 31
};

// The local calendar date.
Date today();

} // namespace dbf
