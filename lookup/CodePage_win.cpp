#include "lookup/CodePage.h"

#include <windows.h>

const CodePageTables &CodePage() {
    static const CodePageTables tables = [] {
        CodePageTables made{};
        for (int c = 0; c < 256; ++c) {
            made.isLead[c] = ::IsDBCSLeadByte(static_cast<BYTE>(c)) != 0;
            made.hasLead = made.hasLead || made.isLead[c];
            char text[1] = {static_cast<char>(c)};
            if (c != 0 && !made.isLead[c])
                ::CharLowerBuffA(text, 1);
            made.folded[c] = static_cast<unsigned char>(text[0]);
        }
        return made;
    }();
    return tables;
}
