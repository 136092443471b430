// What hosts do to a grid, as random events, and the weights of all.
#include "RandomEvents.h"

#include <algorithm>

const RandomEvents::Event RandomEvents::kEvents[] = {
    {120, &RandomEvents::Key},          {40, &RandomEvents::Character},
    {30, &RandomEvents::TypedEdit},     {20, &RandomEvents::EditCommand},
    {60, &RandomEvents::LeftClick},     {15, &RandomEvents::DoubleClick},
    {15, &RandomEvents::RightClick},    {10, &RandomEvents::PressOnly},
    {15, &RandomEvents::MoveOnly},      {15, &RandomEvents::ReleaseOnly},
    {20, &RandomEvents::Drag},          {4, &RandomEvents::DragOutside},
    {4, &RandomEvents::DragAcross},
    {20, &RandomEvents::ListInput},     {20, &RandomEvents::HeadingClick},
    {20, &RandomEvents::HeadingDrag},   {8, &RandomEvents::CornerClick},
    {5, &RandomEvents::CornerDrag},     {20, &RandomEvents::Wheel},
    {20, &RandomEvents::BarCommand},    {15, &RandomEvents::BarThumb},
    {10, &RandomEvents::TabInput},      {12, &RandomEvents::Focus},
    {5, &RandomEvents::Capture},        {6, &RandomEvents::Resize},
    {12, &RandomEvents::Rows},          {12, &RandomEvents::Columns},
    {15, &RandomEvents::Sizes},         {8, &RandomEvents::Heights},
    {4, &RandomEvents::Headings},       {10, &RandomEvents::SelectionMode},
    {15, &RandomEvents::SelectionCommand}, {20, &RandomEvents::Conduct},
    {6, &RandomEvents::Locked},         {8, &RandomEvents::Painting},
    {12, &RandomEvents::Source},        {30, &RandomEvents::Goto},
    {20, &RandomEvents::View},          {10, &RandomEvents::ColumnDefault},
    {6, &RandomEvents::Paste},          {10, &RandomEvents::Misfortune},
    {0, nullptr}};

void RandomEvents::Resize() {
    const bool tiny = m_random.OneIn(6);
    const int width = tiny ? m_random.Below(60) : m_random.Between(150, 500);
    const int height = tiny ? m_random.Below(60) : m_random.Between(100, 320);
    Say("size %d,%d", width, height);
    m_grid.MoveWindow(0, 0, width, height);
}

void RandomEvents::Rows() {
    constexpr int kCounts[] = {0, 1, 2, 5, 12, 20, 40, 100, 300, 1200};
    constexpr int kLarge[] = {63999, 64000, 64001, 64002, 2000000};
    const int count = m_random.OneIn(12) ? m_random.Of(kLarge) : m_random.Of(kCounts);
    Say("%d rows", count);
    m_grid.SetNumberRows(count, m_random.Below(2));
    m_grid.RedrawAll();
}

void RandomEvents::Columns() {
    const int count = m_random.Of({0, 1, 3, 6, 8, 8, 14});
    Say("%d columns", count);
    m_grid.SetNumberCols(count, m_random.Below(2));
    m_grid.RedrawAll();
}

void RandomEvents::Sizes() {
    const int col = m_random.Below(14);
    const long row = m_random.Below(60);
    switch (m_random.Below(4)) {
    case 0: {
        const int width = m_random.Of({0, 0, 2, 30, 100, 700, -1});
        Say("width of %d is %d", col, width);
        m_grid.SetColWidth(col, width);
        break;
    }
    case 1: {
        const int height = m_random.Of({0, 2, 17, 20, 60, 400, -1});
        Say("height of %ld is %d", row, height);
        m_grid.SetRowHeight(row, height);
        break;
    }
    case 2: {
        const int height = m_random.Of({1, 12, 20, 20, 20, 45, -1});
        Say("default height %d", height);
        m_grid.SetDefaultRowHeight(height);
        break;
    }
    default:
        Say("best fit from %d", col);
        m_grid.BestFit(col, m_random.Below(16), m_random.Below(20));
    }
}

void RandomEvents::Heights() {
    const int uniform = m_random.Below(2);
    Say("uniform heights %d", uniform);
    m_grid.SetUniformRowHeight(uniform);
}

void RandomEvents::Headings() {
    if (m_random.OneIn(2)) {
        const int height = m_random.Of({0, 20, 20, 33, 300});
        Say("top heading %d", height);
        m_grid.SetTH_Height(height);
    } else {
        const int width = m_random.Of({0, 50, 50, 80, 600});
        Say("side heading %d", width);
        m_grid.SetSH_Width(width);
    }
}

void RandomEvents::SelectionMode() {
    const int on = m_random.Below(3) > 0;
    if (m_random.OneIn(2)) {
        Say("multi-selection %d", on);
        m_grid.EnableMultiSelect(on);
    } else {
        Say("row highlight %d", !on);
        m_grid.EnableRowHighlight(!on);
    }
    m_grid.RedrawAll();
}

void RandomEvents::SelectionCommand() {
    const int c1 = m_random.Below(10), c2 = m_random.Below(10);
    const long r1 = m_random.Below(60), r2 = m_random.Below(60);
    switch (m_random.Below(3)) {
    case 0:
        Say("selection cleared");
        m_grid.ClearSelections();
        break;
    case 1: {
        Say("multiple selection asked for");
        m_grid.IsInMultipleSelection();
        break;
    }
    default:
        Say("range %d,%ld to %d,%ld", c1, r1, c2, r2);
        m_grid.SelectRange(c1, r1, c2, r2);
    }
}

void RandomEvents::Conduct() {
    using Setting = int (CUGCtrl::*)(int);
    struct Choice {
        const char *name;
        Setting set;
        int values;
    };
    constexpr Choice kChoices[] = {{"vertical scroll mode", &CUGCtrl::SetVScrollMode, 4},
                                   {"horizontal scroll mode", &CUGCtrl::SetHScrollMode, 3},
                                   {"current cell style", &CUGCtrl::SetCurrentCellStyle, 5},
                                   {"sizing mode", &CUGCtrl::SetUserSizingMode, 4},
                                   {"popup menu", &CUGCtrl::EnablePopupMenu, 2},
                                   {"translation", &CUGCtrl::EnableColTranslation, 2},
                                   {"double buffer", &CUGCtrl::SetDoubleBuffer, 2},
                                   {"border width", &CUGCtrl::Set3DBorderWidth, 3}};
    const Choice choice = m_random.Of(kChoices);
    const int value = m_random.Below(choice.values);
    Say("%s %d", choice.name, value);
    (m_grid.*choice.set)(value);
    m_grid.EnableScrollHints(m_random.Below(2), m_random.Below(2));
    m_grid.RedrawAll();
}

void RandomEvents::Locked() {
    const int count = m_random.Below(6);
    Say("%d locked columns", count);
    m_grid.SetLockedColumns(count);
}

void RandomEvents::Painting() {
    const int on = m_random.Below(3) > 0;
    Say("painting %d", on);
    m_grid.EnablePainting(on);
}

void RandomEvents::Source() {
    const int index = m_random.Between(-1, 5);
    switch (m_random.Below(5)) {
    case 0:
        Say("grid from source %d", index);
        m_grid.SetGridUsingDataSource(index);
        break;
    case 1: {
        Say("source %d goes and comes", index);
        m_grid.RemoveDataSource(index);
        // Both find their places again.
        m_grid.RemoveDataSource(1);
        m_grid.RemoveDataSource(2);
        m_grid.AddDataSource(&m_first);
        m_grid.AddDataSource(&m_second);
        break;
    }
    case 2:
        Say("current source goes");
        m_grid.RemoveDataSource(m_grid.GetDefaultDataSource());
        break;
    default:
        Say("source %d is the default", index);
        m_grid.SetDefaultDataSource(index);
    }
    m_grid.RedrawAll();
}

void RandomEvents::Goto() {
    const int col = m_random.Between(-2, 15);
    const long row = m_random.OneIn(10) ? m_random.Below(70000) : m_random.Between(-2, 60);
    const int how = m_random.Between(-1, 6);
    Say("goto %d,%ld or %d", col, row, how);
    switch (m_random.Below(5)) {
    case 0: m_grid.GotoRow(row); break;
    case 1: m_grid.GotoCol(col); break;
    case 2: m_grid.MoveCurrentRow(how); break;
    case 3: m_grid.MoveCurrentCol(how); break;
    default: m_grid.GotoCell(col, row);
    }
}

void RandomEvents::View() {
    const int col = m_random.Between(-2, 15);
    const long row = m_random.OneIn(10) ? m_random.Below(70000) : m_random.Between(-2, 60);
    const int how = m_random.Between(-1, 6);
    Say("view to %d,%ld or %d", col, row, how);
    switch (m_random.Below(6)) {
    case 0: m_grid.SetTopRow(row); break;
    case 1: m_grid.SetLeftCol(col); break;
    case 2: m_grid.MoveTopRow(how); break;
    case 3: m_grid.MoveLeftCol(how); break;
    case 4: m_grid.BringCurrentIntoView(); break;
    default: m_grid.Update();
    }
}

void RandomEvents::ColumnDefault() {
    const int col = m_random.Below(8);
    CUGCell cell;
    if (m_grid.GetColDefault(col, &cell) != GRID_SUCCESS)
        return Say("no column default");
    const int index = m_random.Between(-1, 5), translated = m_random.Between(-1, 12);
    Say("column %d from source %d column %d", col, index, translated);
    cell.SetDataSrcIndex(static_cast<short>(index));
    cell.SetColTranslation(static_cast<short>(translated));
    cell.SetReadOnly(m_random.OneIn(6));
    m_grid.SetColDefault(col, &cell);
    m_grid.RedrawAll();
}

void RandomEvents::Paste() {
    Say("paste");
    m_grid.PasteText("1\t2\t3\r\n\t5\r\n7");
}

void RandomEvents::Misfortune() {
    const bool fails = m_random.OneIn(3), vetoes = m_random.OneIn(3);
    Say("sources fail %d, notifications veto %d", fails, vetoes);
    m_first.m_fails = m_second.m_fails = fails;
    m_grid.m_readsFail = fails;
    m_grid.m_vetoing = vetoes;
    m_grid.RedrawAll();
}
