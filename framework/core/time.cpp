#include "afx.h"

CTime::CTime(int year, int month, int day, int hour, int minute, int second) {
    std::tm local{};
    local.tm_year = year - 1900;
    local.tm_mon = month - 1;
    local.tm_mday = day;
    local.tm_hour = hour;
    local.tm_min = minute;
    local.tm_sec = second;
    local.tm_isdst = -1;
    m_time = static_cast<LONGLONG>(std::mktime(&local));
}

CTime CTime::GetCurrentTime() {
    return CTime(static_cast<LONGLONG>(std::time(nullptr)));
}

std::tm CTime::Local() const {
    const std::time_t time = static_cast<std::time_t>(m_time);
    const std::tm *local = std::localtime(&time);
    return local ? *local : std::tm{};
}

CString CTime::Format(LPCSTR format) const {
    const std::tm local = Local();
    char text[512];
    return CString(text, static_cast<int>(std::strftime(text, sizeof text, format, &local)));
}
