// The lookup tables of docs/formats-lookup.md as bytes.
#pragma once

#include "MemoryFile.h"

// Both begin so: version, four properties, no reserved numbers.
inline std::string ExampleFront() {
    return Bytes("04 00 00 00  04 00 01 31 01 31 01 31 01 31  00 00");
}

// The trie, the same for both: A, and below it the ends 1 and 2.
inline std::string ExampleTrie() {
    return Bytes("01 00 00 00 00 01 00 00 00") + Bytes("01 41 00 01 00 01 41 02 00 00 00") +
           Bytes("03 31 00 02 00 01 41 01 31 00 00 00 00") + Bytes("03 32 00 02 00 01 41 01 32 00 00 00 00");
}

// Alpha, with one and two below it.
inline std::string PlainExample() {
    return ExampleFront() + Bytes("02 00 00 00 00 00 00 00") +
           Bytes("00 00 01 00 00 00 05 00 00 00 06 00 00 00 FF FF FF FF 01 00 00 00") +
           Bytes("01 41 05 41 6C 70 68 61 01 00 00 00 03 00 00 00 04 00 00 00 00 00 00 00 02 00 00 00") +
           Bytes("01 31 03 6F 6E 65 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00") +
           Bytes("01 32 03 74 77 6F 00 00 00 00 00 00 00 00 00 00 00 00 01 00 00 00 00 00 00 00") + ExampleTrie();
}

// The same codes as two lists.
inline std::string SharedExample() {
    return ExampleFront() + Bytes("02 00 00 00 01 00 00 00") + Bytes("02 00 00 00 02 00 00 00 01 00 00 00") +
           Bytes("FF FF FF FF 01 31 03 6F 6E 65 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00") +
           Bytes("FF FF FF FF 01 32 03 74 77 6F 00 00 00 00 00 00 00 00 00 00 00 00 01 00 00 00") +
           Bytes("00 00 00 00 01 41 05 41 6C 70 68 61 01 00 00 00 03 00 00 00 04 00 00 00 00 00 00 00") +
           Bytes("01 00 00 00 00 00 01 00 00 00 05 00 00 00 06 00 00 00 FF FF FF FF") + ExampleTrie();
}
