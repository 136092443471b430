// Numbers as decimal text. Nothing here goes through binary floating point, so no digit is ever rounded.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace dbf {

enum class DecimalFault { none, notANumber, tooManyDecimals, tooWide };

// Renders a typed number with exactly `decimals` decimals, right-justified in `width` characters. Further
// decimals are accepted where they are zeros. A lone zero before the point gives way when space is short.
DecimalFault renderDecimal(std::string_view typed, std::size_t width, int decimals, std::string &rendered);

} // namespace dbf
