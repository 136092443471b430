// The native build knows ASCII only, as its strings do.
#include "lookup/CodePage.h"

#include <cctype>

const CodePageTables &CodePage() {
    static const CodePageTables tables = [] {
        CodePageTables made{};
        for (int c = 0; c < 256; ++c)
            made.folded[c] = static_cast<unsigned char>(c < 0x80 ? std::tolower(c) : c);
        return made;
    }();
    return tables;
}
