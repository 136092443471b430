#include "DecimalText.h"

#include <algorithm>

namespace dbf {
namespace {

bool isDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool isZeros(std::string_view text) {
    return text.find_first_not_of('0') == std::string_view::npos;
}

} // namespace

DecimalFault renderDecimal(std::string_view typed, std::size_t width, int decimals, std::string &rendered) {
    bool negative = false;
    if (!typed.empty() && (typed[0] == '-' || typed[0] == '+')) {
        negative = typed[0] == '-';
        typed.remove_prefix(1);
    }
    const auto point = typed.find('.');
    std::string_view whole = typed.substr(0, point);
    std::string_view part = point == std::string_view::npos ? std::string_view{} : typed.substr(point + 1);
    if (!isDigits(whole) || !isDigits(part) || (whole.empty() && part.empty())) {
        return DecimalFault::notANumber;
    }
    const auto places = static_cast<std::size_t>(std::max(decimals, 0));
    if (part.size() > places) {
        if (!isZeros(part.substr(places))) {
            return DecimalFault::tooManyDecimals;
        }
        part = part.substr(0, places);
    }
    whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
    negative = negative && !(isZeros(whole) && isZeros(part));

    std::string number = negative ? "-" : "";
    const std::size_t needed = number.size() + whole.size() + (places ? places + 1 : 0);
    if (whole.empty() && (places == 0 || needed < width)) {
        number += '0';
    }
    number += whole;
    if (places) {
        number += '.';
        number += part;
        number.append(places - part.size(), '0');
    }
    if (number.size() > width) {
        return DecimalFault::tooWide;
    }
    rendered = std::string(width - number.size(), ' ') + number;
    return DecimalFault::none;
}

} // namespace dbf
