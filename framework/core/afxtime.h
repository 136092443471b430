// CTime, a point in time in whole seconds; what CFileStatus needs and little more.
//
// Differences from MFC: no conversion from or to the system's time structures, and no CTimeSpan: the
// difference of two times is a number of seconds.
#pragma once

#include "afxstr.h"
#include <ctime>

// The system's headers define this as a macro.
#undef GetCurrentTime

class ORVANEFW_API CTime {
public:
    CTime() : m_time(0) {}
    // Seconds since 1970 in universal time.
    explicit CTime(LONGLONG time) : m_time(time) {}
    // Local time; month and day count from one.
    CTime(int year, int month, int day, int hour, int minute, int second);

    static CTime GetCurrentTime();

    LONGLONG GetTime() const { return m_time; }
    // In local time.
    int GetYear() const { return Local().tm_year + 1900; }
    int GetMonth() const { return Local().tm_mon + 1; }
    int GetDay() const { return Local().tm_mday; }
    int GetHour() const { return Local().tm_hour; }
    int GetMinute() const { return Local().tm_min; }
    int GetSecond() const { return Local().tm_sec; }
    // 1 is Sunday.
    int GetDayOfWeek() const { return Local().tm_wday + 1; }
    // As strftime, in local time.
    CString Format(LPCSTR format) const;

    bool operator==(const CTime &other) const { return m_time == other.m_time; }
    bool operator!=(const CTime &other) const { return m_time != other.m_time; }
    bool operator<(const CTime &other) const { return m_time < other.m_time; }
    bool operator>(const CTime &other) const { return m_time > other.m_time; }
    bool operator<=(const CTime &other) const { return m_time <= other.m_time; }
    bool operator>=(const CTime &other) const { return m_time >= other.m_time; }

private:
    std::tm Local() const;

    LONGLONG m_time;
};
