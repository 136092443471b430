// A block of cells as text: cells apart by TAB, rows by CR LF, nothing behind the last. There is no quoting, so a
// tab or a line break inside a cell splits it. Reading takes CR LF, lone CR and lone LF as row ends. Window-free.
#pragma once

namespace ClipboardText {

// Cells of the first line, and one more than the line feeds of the whole text: a text that ends in a line break
// counts a row more than it holds, and one with lone CR counts one row.
struct Size {
    int cols = 1;
    long rows = 1;
};
ORVANE_API Size Measure(const char *text);

// Walks the fields of a text in order. The text must outlive the reader and end in NUL.
class ORVANE_API Reader {
public:
    explicit Reader(const char *text) : m_at(text) {}

    // The next field and where it lies, counted from the block's corner; false behind the last. A line break at
    // the very end adds nothing.
    bool Next();

    const char *m_begin = nullptr; // of the field, which is not terminated
    const char *m_end = nullptr;
    int m_col = 0;
    long m_row = 0;

private:
    const char *m_at;
    int m_nextCol = 0;
    long m_nextRow = 0;
};

} // namespace ClipboardText
