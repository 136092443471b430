#include "grid/UGAxis.h"

#include <algorithm>

long CUGAxis::Span(long first, long end) const {
    long long sum = 0;
    if (m_uniform)
        sum = static_cast<long long>(end - first) * m_defaultSize;
    else
        for (long index = first; index < end; ++index)
            sum += m_sizes[index];
    return static_cast<long>(std::min<long long>(sum, kFarPx));
}

long CUGAxis::EndOf(long begin, long index) const {
    return static_cast<long>(std::min<long long>(static_cast<long long>(begin) + SizeOf(index), kFarPx));
}

long CUGAxis::PositionOf(long index) const {
    return index >= m_leading ? Span(m_leading, index) : -Span(index, m_leading);
}

long CUGAxis::At(int position, int *start) const {
    long begin = 0;
    for (long index = m_leading; index < m_count && !AllHidden(); ++index) {
        const long end = EndOf(begin, index);
        if (position < end) {
            if (start != nullptr)
                *start = static_cast<int>(begin);
            return index;
        }
        begin = end;
        if (begin > position)
            break;
    }
    return -1;
}

long CUGAxis::LastVisible() const {
    if (m_count == 0 || AllHidden())
        return m_count - 1;
    long index = std::min(m_leading, m_count - 1);
    for (long end = EndOf(0, index); end < m_extent && index + 1 < m_count;)
        end = EndOf(end, ++index);
    return index;
}

long CUGAxis::ComputeMaxLeading() const {
    long room = m_extent;
    for (long index = m_count - 1; index >= 0 && !AllHidden(); --index) {
        room -= SizeOf(index);
        if (room < 0)
            return std::min(index + 1, m_count - 1);
    }
    return 0;
}

long CUGAxis::LeadingForCurrent(int margin) const {
    if (m_leading > m_current) {
        // Where the last update left the same current one, the view was scrolled away from it on purpose.
        return m_last == m_current ? m_leading : std::max(m_current, 0L);
    }
    long least = 0;
    long room = m_extent;
    for (long index = std::min(m_current + margin, m_count) - 1; index >= 0 && !AllHidden(); --index) {
        room -= SizeOf(index);
        if (room < 0) {
            least = index + 1;
            break;
        }
    }
    return least > m_current ? m_current : std::max(m_leading, least);
}

long CUGAxis::PageForward(long from) const {
    if (AllHidden())
        return std::max(m_count - 1, from + 1);
    long room = m_extent;
    long index = from;
    for (; index < m_count; ++index) {
        room -= SizeOf(index);
        if (room < 0)
            break;
    }
    return std::max(index - 1, from + 1);
}

long CUGAxis::PageBack(long from) const {
    if (AllHidden())
        return std::min(0L, from - 1);
    long room = m_extent;
    long index = std::min(from, m_count - 1);
    for (; index >= 0; --index) {
        room -= SizeOf(index);
        if (room < 0)
            break;
    }
    return std::min(index + 1, from - 1);
}

long CUGAxis::EdgeAt(int position, int tolerance, int *start) const {
    long begin = 0;
    if (AllHidden())
        return m_count > 0 && position > -tolerance && position < tolerance ? m_count - 1 : -1;
    for (long index = m_leading; index < m_count; ++index) {
        long edge = EndOf(begin, index);
        if (position <= edge - tolerance)
            return -1;
        if (position < edge + tolerance) {
            while (index + 1 < m_count && SizeOf(index + 1) < tolerance) {
                begin = edge;
                edge += SizeOf(++index);
            }
            if (start != nullptr)
                *start = static_cast<int>(begin);
            return index;
        }
        begin = edge;
    }
    return -1;
}

bool CUGAxis::ClampToCount() {
    if (m_count == 0) {
        m_current = m_last = m_leading = m_lastLeading = 0;
        return false;
    }
    m_leading = std::clamp(m_leading, 0L, m_count - 1);
    const long current = std::clamp(m_current, 0L, m_count - 1);
    if (current == m_current)
        return false;
    m_current = current;
    return true;
}
