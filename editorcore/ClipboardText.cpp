#include "editorcore/ClipboardText.h"

#include <cstring>

namespace ClipboardText {

Size Measure(const char *text) {
    Size size;
    for (const char *at = text; *at != '\0' && *at != '\r' && *at != '\n'; ++at)
        size.cols += *at == '\t';
    for (const char *at = text; (at = std::strchr(at, '\n')) != nullptr; ++at)
        ++size.rows;
    return size;
}

bool Reader::Next() {
    if (*m_at == '\0')
        return false;
    m_col = m_nextCol;
    m_row = m_nextRow;
    m_begin = m_at;
    m_end = m_at + std::strcspn(m_at, "\t\r\n");
    m_at = m_end;
    if (*m_at == '\t') {
        ++m_nextCol;
    } else {
        m_nextCol = 0;
        ++m_nextRow;
    }
    if (*m_at == '\r' && m_at[1] == '\n')
        ++m_at;
    if (*m_at != '\0')
        ++m_at;
    return true;
}

} // namespace ClipboardText
