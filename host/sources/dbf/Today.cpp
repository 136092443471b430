#include "Today.h"

#include <ctime>

namespace dbf {

Date today() {
    const std::time_t now = std::time(nullptr);
    const std::tm *local = std::localtime(&now);
    return local ? Date{local->tm_year + 1900, local->tm_mon + 1, local->tm_mday} : Date{1980, 1, 1};
}

} // namespace dbf
