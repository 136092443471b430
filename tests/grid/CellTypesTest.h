// The fixture of the cell types' tests: a control over its own store that notes what the types tell, and
// pictures to paint into.
#pragma once

#include "RecordingGrid.h"
#include "WindowTestApp.h"

#include "grid/UGEllipsisType.h"

#include <gtest/gtest.h>

#include <string>

// A bitmap of its own, filled with a colour that no cell uses.
class Picture {
public:
    Picture(int width, int height);
    ~Picture();
    CDC *Dc() { return &m_dc; }
    CRect Area() const { return CRect(0, 0, m_size.cx, m_size.cy); }
    COLORREF At(int x, int y) const { return ::GetPixel(m_dc.GetSafeHdc(), x, y); }
    int Count(COLORREF colour, const CRect &where) const;
    int Count(COLORREF colour) const { return Count(colour, Area()); }
    // The smallest rectangle with all pixels of the colour; empty when there are none.
    CRect Bounds(COLORREF colour, const CRect &where) const;
    CRect Bounds(COLORREF colour) const { return Bounds(colour, Area()); }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    CSize m_size;
    HGDIOBJ m_old;
};

constexpr COLORREF kUnpainted = RGB(1, 2, 3);
constexpr COLORREF kRed = RGB(255, 0, 0);    // text of the painted cells
constexpr COLORREF kPale = RGB(255, 255, 0); // their back
constexpr COLORREF kLime = RGB(0, 255, 0);   // highlighted text
constexpr COLORREF kBlue = RGB(0, 0, 255);   // highlighted back

class TypesGrid : public RecordingGrid {
public:
    void OnCellTypeNotify(long id, int col, long row, long message, LPARAM param) override;
    HWND List() const { return ::GetDlgItem(m_hWnd, 238); }
    void OnGetCell(int col, long row, CUGCell *cell) override {
        RecordingGrid::OnGetCell(col, row, cell);
        if (m_onReadCell)
            m_onReadCell(col, row, cell);
    }
    std::function<void(int, long, CUGCell *)> m_onReadCell;
    std::string m_told; // "id.col.row.message=parameter", apart by blanks
    std::function<void(CStringList *)> m_onListOpens;
    std::function<void()> m_onTold;
};

class CellTypesTest : public testing::Test {
protected:
    CellTypesTest();
    ~CellTypesTest() override { m_grid.DestroyWindow(); }

    void Put(int col, long row, int type, const char *text, const char *label = "", int style = -1);
    // A cell for painting, in the four colours.
    static CUGCell Coloured(const char *text, int style = -1);
    CUGCellType *Type(int id) { return m_grid.GetCellType(id); }
    CRect RectOf(int col, long row);
    // Where the button of a cell is, in grid coordinates.
    CRect ButtonOf(int col, long row);
    // The type's click operation at a point of the cell.
    int Press(int type, int col, long row, CPoint point) { return Click(type, col, row, 1, point); }
    int Release(int type, int col, long row, CPoint point) { return Click(type, col, row, 0, point); }
    int DoubleClick(int type, int col, long row, CPoint point);
    int Move(int type, CPoint point, UINT flags = MK_LBUTTON) {
        return Type(type)->OnMouseMove(&point, flags);
    }
    int Key(int type, UINT *key) { return Type(type)->OnKeyDown(key); }
    std::string Told() { return std::exchange(m_grid.m_told, ""); }
    void Draw(Picture &picture, int type, CUGCell cell, int selected = 0, int current = 0);
    // True when the operation leaves something to repaint in the cell.
    bool Repaints(int col, long row, const std::function<void()> &operation);

    HostWindow m_host;
    TypesGrid m_grid;
    CUGEllipsisType m_ellipsis;

private:
    int Click(int type, int col, long row, int updn, CPoint point);
};
