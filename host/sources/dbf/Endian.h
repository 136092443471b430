// Numbers in byte order, read from and written to unaligned bytes.
#pragma once

#include <cstdint>

namespace dbf {

inline std::uint16_t littleU16(const std::uint8_t *p) {
    return static_cast<std::uint16_t>(p[0] | p[1] << 8);
}

inline std::uint32_t littleU32(const std::uint8_t *p) {
    return littleU16(p) | static_cast<std::uint32_t>(littleU16(p + 2)) << 16;
}

inline std::uint64_t littleU64(const std::uint8_t *p) {
    return littleU32(p) | static_cast<std::uint64_t>(littleU32(p + 4)) << 32;
}

inline std::uint16_t bigU16(const std::uint8_t *p) {
    return static_cast<std::uint16_t>(p[0] << 8 | p[1]);
}

inline std::uint32_t bigU32(const std::uint8_t *p) {
    return static_cast<std::uint32_t>(bigU16(p)) << 16 | bigU16(p + 2);
}

inline void putLittleU32(std::uint8_t *p, std::uint32_t value) {
    for (int i = 0; i < 4; ++i) {
        p[i] = static_cast<std::uint8_t>(value >> (8 * i));
    }
}

} // namespace dbf
