// What comparing codes asks of the machine's code page.
#pragma once

struct CodePageTables {
    unsigned char folded[256]; // each character in lower case; lead bytes as they are
    bool isLead[256];          // the first of two bytes that are one character
    bool hasLead;
};

// Filled at the first call.
const CodePageTables &CodePage();
