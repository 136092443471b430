#include "search/ClassEnd.h"

namespace Search {

size_t ClassEnd(const std::string &regex, size_t at) {
    size_t end = at + 1;
    if (end < regex.size() && regex[end] == '^')
        ++end;
    if (end < regex.size() && regex[end] == ']')
        ++end; // a bracket at the beginning is one of the characters
    while (end < regex.size() && regex[end] != ']') {
        if (regex[end] == '\\') {
            ++end;
        } else if (regex[end] == '[' && end + 1 < regex.size() &&
                   std::string(":.=").find(regex[end + 1]) != std::string::npos) {
            const std::string close = {regex[end + 1], ']'};
            const size_t found = regex.find(close, end + 2);
            end = found == std::string::npos ? regex.size() : found + 1;
        }
        ++end;
    }
    return end + 1;
}

} // namespace Search
