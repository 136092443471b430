#include "CellTypesTest.h"

#include <algorithm>

Picture::Picture(int width, int height) : m_size(width, height) {
    CClientDC screen(nullptr);
    m_dc.CreateCompatibleDC(&screen);
    m_bitmap.CreateCompatibleBitmap(&screen, width, height);
    m_old = m_dc.SelectObject(m_bitmap.GetSafeHandle());
    m_dc.FillSolidRect(Area(), kUnpainted);
}

Picture::~Picture() {
    m_dc.SelectObject(m_old);
}

int Picture::Count(COLORREF colour, const CRect &where) const {
    int count = 0;
    for (int y = where.top; y < where.bottom; ++y) {
        for (int x = where.left; x < where.right; ++x)
            count += At(x, y) == colour;
    }
    return count;
}

CRect Picture::Bounds(COLORREF colour, const CRect &where) const {
    CRect bounds(0, 0, 0, 0);
    for (int y = where.top; y < where.bottom; ++y) {
        for (int x = where.left; x < where.right; ++x) {
            if (At(x, y) == colour)
                bounds.UnionRect(bounds, CRect(x, y, x + 1, y + 1));
        }
    }
    return bounds;
}

void TypesGrid::OnCellTypeNotify(long id, int col, long row, long message, LPARAM param) {
    std::string told = std::to_string(id) + "." + std::to_string(col) + "." + std::to_string(row) + "." +
                       std::to_string(message) + "=";
    if (id == kDropListTypeId && message == kListOpens) {
        auto *items = reinterpret_cast<CStringList *>(param);
        for (POSITION at = items->GetHeadPosition(); at != nullptr;)
            told += std::string(items->GetNext(at)) + "|";
        if (m_onListOpens)
            m_onListOpens(items);
    } else if (id == kDropListTypeId) {
        told += reinterpret_cast<const char *>(param);
    } else {
        told += std::to_string(param);
    }
    m_told += (m_told.empty() ? "" : " ") + told;
    if (m_onTold)
        m_onTold();
}

CellTypesTest::CellTypesTest() {
    m_grid.CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), &m_host, 100);
    m_grid.AddCellType(&m_ellipsis);
    m_grid.SetNumberCols(3);
    m_grid.SetNumberRows(5);
    m_grid.SetFocus();
    PumpAll();
}

void CellTypesTest::Put(int col, long row, int type, const char *text, const char *label, int style) {
    CUGCell cell;
    cell.SetText(text);
    if (*label != '\0')
        cell.SetLabelText(label);
    cell.SetCellType(type);
    if (style >= 0)
        cell.SetCellTypeEx(style);
    m_grid.SetCell(col, row, &cell);
    m_grid.GotoCell(2, 4);
    m_grid.GotoCell(col, row); // reads the snapshot anew
    PumpAll();
}

CUGCell CellTypesTest::Coloured(const char *text, int style) {
    CUGCell cell;
    cell.SetText(text);
    cell.SetTextColor(kRed);
    cell.SetBackColor(kPale);
    cell.SetHTextColor(kLime);
    cell.SetHBackColor(kBlue);
    cell.SetAlignment(UG_ALIGN_LEFT);
    if (style >= 0)
        cell.SetCellTypeEx(style);
    return cell;
}

CRect CellTypesTest::RectOf(int col, long row) {
    CRect rect;
    m_grid.GetCellRect(col, row, &rect);
    return rect;
}

CRect CellTypesTest::ButtonOf(int col, long row) {
    return CRect(CUGButtonType::ButtonRect(RectOf(col, row)));
}

int CellTypesTest::Click(int type, int col, long row, int updn, CPoint point) {
    CRect rect = RectOf(col, row);
    return Type(type)->OnLClicked(col, row, updn, &rect, &point);
}

int CellTypesTest::DoubleClick(int type, int col, long row, CPoint point) {
    CRect rect = RectOf(col, row);
    return Type(type)->OnDClicked(col, row, &rect, &point);
}

void CellTypesTest::Draw(Picture &picture, int type, CUGCell cell, int selected, int current) {
    CRect area = picture.Area();
    Type(type)->OnDraw(picture.Dc(), &area, &cell, selected, current);
}

bool CellTypesTest::Repaints(int col, long row, const std::function<void()> &operation) {
    PumpAll();
    operation();
    CRect dirty, cell = RectOf(col, row);
    ::GetUpdateRect(m_grid.Cells(), &dirty, FALSE);
    return CRect().IntersectRect(dirty, cell) != FALSE;
}
