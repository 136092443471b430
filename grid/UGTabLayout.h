// Where the tabs of the tab bar stand. Window-free: widths come in, positions go out, all in pixels.
//
// Positions are in the bar's window, with the scrolling taken off.
#pragma once

#include <afx.h>

#include <string>
#include <vector>

constexpr int kMostTabs = 32;
constexpr int kTabLeftSlopePx = 7;
constexpr int kTabRightSlopePx = 2;
constexpr int kTabTextMarginPx = 9;

class ORVANE_API UGTabLayout {
public:
    struct Tab {
        std::string text;
        long id;
        int width; // with slopes and margin
    };

    // A tab behind the others, or before the tab at `at`. GRID_ERROR when the bar is full, the id is taken or
    // the place is beyond the end.
    int Add(const char *text, long id, int textWidth, int at = -1);
    int Delete(long id);
    // GRID_ERROR when there is no such tab.
    int Select(long id);

    const std::vector<Tab> &Tabs() const { return m_tabs; }
    int IndexOf(long id) const; // -1 for none
    int Current() const { return m_current; }
    int Scroll() const { return m_scroll; }
    int MaxScroll() const { return m_maxScroll; }
    void SetTextWidth(int index, int textWidth);
    // The room for the tabs, without the bar.
    void SetRoom(int width);
    void SetScroll(int scroll); // held within 0 and the maximum
    // Scrolls so that the tab is seen in full.
    void BringIntoView(int index);

    int LeftOf(int index) const;
    // The four corners of a tab's shape, which tapers downwards, in a bar of this height: top left, top
    // right, bottom right, bottom left.
    void Corners(int index, int height, POINT corners[4]) const;
    // The tab at this place; -1 for none.
    int HitTest(int x) const;

private:
    void Adjust();
    bool Covers(int index, int x) const;

    std::vector<Tab> m_tabs;
    int m_current = 0;
    int m_room = 0;
    int m_scroll = 0;
    int m_maxScroll = 0;
};
