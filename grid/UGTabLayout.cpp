#include "grid/UGTabLayout.h"

#include "grid/UGDefine.h"

#include <algorithm>

namespace {

constexpr int kEndPx = 5;      // behind the last tab
constexpr int kRoomLeftPx = 5; // what stays free beside a tab that was brought into view
constexpr int kRoomRightPx = 15;

int WidthFor(int textWidth) {
    return textWidth + kTabLeftSlopePx + kTabRightSlopePx + kTabTextMarginPx;
}

} // namespace

int UGTabLayout::IndexOf(long id) const {
    for (size_t i = 0; i < m_tabs.size(); ++i) {
        if (m_tabs[i].id == id)
            return static_cast<int>(i);
    }
    return -1;
}

int UGTabLayout::Add(const char *text, long id, int textWidth, int at) {
    const int count = static_cast<int>(m_tabs.size());
    if (count >= kMostTabs || IndexOf(id) >= 0 || at > count)
        return GRID_ERROR;
    const int place = at < 0 ? count : at;
    m_tabs.insert(m_tabs.begin() + place, Tab{text, id, WidthFor(textWidth)});
    if (count > 0 && place <= m_current)
        ++m_current; // the same tab stays current
    Adjust();
    return GRID_SUCCESS;
}

int UGTabLayout::Delete(long id) {
    const int index = IndexOf(id);
    if (index < 0)
        return GRID_ERROR;
    m_tabs.erase(m_tabs.begin() + index);
    if (index < m_current)
        --m_current;
    m_current = std::max(0, std::min(m_current, static_cast<int>(m_tabs.size()) - 1));
    Adjust();
    return GRID_SUCCESS;
}

int UGTabLayout::Select(long id) {
    const int index = IndexOf(id);
    if (index < 0)
        return GRID_ERROR;
    m_current = index;
    BringIntoView(index);
    return GRID_SUCCESS;
}

void UGTabLayout::SetTextWidth(int index, int textWidth) {
    m_tabs[index].width = WidthFor(textWidth);
    Adjust();
}

void UGTabLayout::SetRoom(int width) {
    m_room = width;
    Adjust();
}

void UGTabLayout::SetScroll(int scroll) {
    m_scroll = std::clamp(scroll, 0, m_maxScroll);
}

void UGTabLayout::Adjust() {
    int sum = m_tabs.empty() ? 0 : kEndPx;
    for (const Tab &tab : m_tabs)
        sum += tab.width;
    m_maxScroll = std::max(sum - m_room, 0);
    SetScroll(m_scroll);
}

// Where the bar is too narrow for the whole tab its left end shows.
void UGTabLayout::BringIntoView(int index) {
    const int left = LeftOf(index) + m_scroll;
    const int right = left + m_tabs[index].width;
    SetScroll(std::max(m_scroll, right + kRoomRightPx - m_room));
    SetScroll(std::min(m_scroll, left - kRoomLeftPx));
}

int UGTabLayout::LeftOf(int index) const {
    int left = -m_scroll;
    for (int i = 0; i < index; ++i)
        left += m_tabs[i].width;
    return left;
}

void UGTabLayout::Corners(int index, int height, POINT corners[4]) const {
    const int left = LeftOf(index);
    const int right = left + m_tabs[index].width;
    // The tabs hang from the upper edge: they are wide there and narrow below.
    corners[0] = {left, 0};
    corners[1] = {right, 0};
    corners[2] = {right - kTabRightSlopePx, height - 1};
    corners[3] = {left + kTabLeftSlopePx, height - 1};
}

bool UGTabLayout::Covers(int index, int x) const {
    const int left = LeftOf(index);
    return x >= left && x < left + m_tabs[index].width;
}

int UGTabLayout::HitTest(int x) const {
    for (int i = 0; i < static_cast<int>(m_tabs.size()); ++i) {
        if (Covers(i, x))
            return i;
    }
    return -1;
}
