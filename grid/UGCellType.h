// CUGCellType: how the cells that name its id are painted and take part in mouse and key events. One object
// serves all those cells.
//
// The base class draws text by the grid's rule. Click and key operations answer 0 or -1 when they did not
// handle the event, and -2 when they did and want the mouse kept. Rectangles and points are in grid
// coordinates. The order of the virtual operations is part of the interface.
#pragma once

#include <afxwin.h>

#include "grid/UGCell.h"

class CUGCtrl;
class CUGGridInfo;

constexpr int UGCT_NOT_HANDLED = -1;
constexpr int UGCT_HANDLED = -2; // and the mouse is wanted

class ORVANE_API CUGCellType {
public:
    explicit CUGCellType(int id = 0);
    virtual ~CUGCellType() = default;

    virtual int GetID();
    // May shrink the rectangle for the edit control.
    virtual int GetEditArea(RECT *rect);
    virtual int UnusedCellOperationA(long, long);
    virtual int UnusedCellOperationB(long, long, long);
    virtual int UnusedCellOperationC();
    virtual int OnLClicked(int col, long row, int updn, RECT *rect, POINT *point);
    virtual int OnRClicked(int col, long row, int updn, RECT *rect, POINT *point);
    virtual int OnDClicked(int col, long row, RECT *rect, POINT *point);
    virtual int OnKeyDown(UINT *key);
    virtual int OnCharDown(UINT *key);
    virtual int OnMouseMove(POINT *point, UINT flags);
    // `selected` and `current` choose the highlight colours. The border is already drawn and taken off `rect`. The
    // device context is a new one with the default font selected, and with what OnDrawSetup did to it: text aligned
    // left and top, black pen, white brush, opaque background. What this leaves changed is put back by the caller.
    virtual void OnDraw(CDC *dc, RECT *rect, CUGCell *cell, int selected, int current);
    // Draws as OnDraw does, not highlighted, with a font that has the proportion to the rectangle's height that
    // it has on the screen to a row of default height; `scale` is a percentage of that.
    virtual void OnPrint(CDC *dc, RECT *rect, CUGCell *cell, int scale);
    virtual int OnSetFocus(int col, long row, CUGCell *cell);
    virtual int OnKillFocus(int col, long row, CUGCell *cell);
    // Pixels that the cell's text needs in the cell's font or the default font.
    virtual void GetBestSize(CDC *dc, SIZE *size, CUGCell *cell);

    void SetID(int id) { m_id = id; }
    int CanTextEdit() const { return m_canTextEdit; }

    // Draws the cell's border and takes it off the rectangle.
    void DrawBorder(CDC *dc, RECT *rect, CUGCell *cell);

    int m_id;
    int m_canTextEdit = 1;
    int m_useLabel = 0;
    int m_hasFocus = 0;
    int m_focusCol = -1;
    long m_focusRow = -1;
    CUGGridInfo *m_GI = nullptr; // borrowed; both are set when the type is added to a control
    CUGCtrl *m_ctrl = nullptr;

protected:
    const char *DisplayText(const CUGCell *cell) const;
    int StyleOf(const CUGCell *cell) const;
    // The cell, as it is read now, takes no change.
    bool IsReadOnly(int col, long row) const;
    // True when a cell in this state is drawn in the highlight colours.
    bool IsHighlighted(int selected, int current) const;

    // Selects an object for the length of a block; null selects nothing.
    class ObjectScope {
    public:
        ObjectScope(CDC *dc, HGDIOBJ object)
            : m_dc(dc->GetSafeHdc()), m_old(object != nullptr ? ::SelectObject(m_dc, object) : nullptr) {}
        ~ObjectScope() {
            if (m_old != nullptr)
                ::SelectObject(m_dc, m_old);
        }
        ObjectScope(const ObjectScope &) = delete;
        ObjectScope &operator=(const ObjectScope &) = delete;

    private:
        HDC m_dc;
        HGDIOBJ m_old;
    };

private:
    void DrawBitmap(CDC *dc, RECT *rect, CUGCell *cell, COLORREF back);
    void DrawText(CDC *dc, RECT *rect, CUGCell *cell, COLORREF back);
    void DrawShortened(CDC *dc, const RECT &rect, const char *text, int length, int alignment);
};
