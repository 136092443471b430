#include "lookup/PoolText.h"

#include "lookup/TreePool.h"

#include <cstring>

namespace {

constexpr unsigned kLong = 255; // the byte in front of a text whose length stands before it in four bytes
constexpr char kEmpty[2] = {0, 0};

} // namespace

CPoolText::CPoolText() : m_pText(kEmpty + 1) {}

CPoolText::CPoolText(CTreePool &pool, LPCSTR text, unsigned length) : CPoolText() {
    if (length == 0)
        return;
    const size_t front = length < kLong ? 1 : 1 + sizeof length;
    char *memory = pool.AllocateText(front + length + 1) + front;
    if (length >= kLong)
        std::memcpy(memory - front, &length, sizeof length);
    memory[-1] = static_cast<char>(length < kLong ? length : kLong);
    std::memcpy(memory, text, length);
    memory[length] = '\0';
    m_pText = memory;
}

int CPoolText::GetLength() const {
    unsigned length = static_cast<unsigned char>(m_pText[-1]);
    if (length == kLong)
        std::memcpy(&length, m_pText - 1 - sizeof length, sizeof length);
    return static_cast<int>(length);
}
