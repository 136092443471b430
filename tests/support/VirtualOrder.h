// Where virtual functions stand in their class's table, for tests that hold the order of an interface.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>

// Bytes from the start of the table; -1 for a function that is not virtual. A pointer to a virtual member
// holds the offset plus one.
template <class Member> long VtableOffset(Member member) {
    static_assert(sizeof member == 2 * sizeof(void *));
    intptr_t parts[2];
    std::memcpy(parts, &member, sizeof parts);
    return (parts[0] & 1) != 0 ? static_cast<long>(parts[0] - 1) : -1;
}

// "in order", or the number of the first member that does not stand straight behind its predecessor.
template <class... Members> std::string OrderOf(Members... members) {
    const long offsets[] = {VtableOffset(members)...};
    for (size_t i = 0; i < sizeof...(members); ++i) {
        if (offsets[i] < 0)
            return "member " + std::to_string(i) + " is not virtual";
        if (i > 0 && offsets[i] != offsets[i - 1] + static_cast<long>(sizeof(void *)))
            return "member " + std::to_string(i) + " stands at " + std::to_string(offsets[i]) + " behind " +
                   std::to_string(offsets[i - 1]);
    }
    return "in order";
}
