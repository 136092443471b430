// SeededRandom: numbers that are the same for a seed everywhere. The engine is prescribed bit by bit; the
// library's distributions are not, so the arithmetic stands here.
#pragma once

#include <cstdint>
#include <random>

class SeededRandom {
public:
    explicit SeededRandom(uint32_t seed) : m_engine(seed) {}

    // 0 to bound - 1; the slight preference of small numbers does not matter here.
    int Below(int bound) { return static_cast<int>(m_engine() % static_cast<uint32_t>(bound)); }
    // Both ends included.
    int Between(int least, int most) { return least + Below(most - least + 1); }
    bool OneIn(int chances) { return Below(chances) == 0; }
    template <class T, size_t N> T Of(const T (&choices)[N]) { return choices[Below(static_cast<int>(N))]; }

private:
    std::mt19937 m_engine;
};
