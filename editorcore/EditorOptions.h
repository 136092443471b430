// CVEditorOptions: the host's options object. The library borrows it from CVAppInterface::GetEditorOptions and
// expects it to live as long as the host.
//
// The order of the operations is part of the interface. The library never calls the reserved ones; they keep
// their places.
#pragma once

#include <windef.h>

struct tagLOGFONTA;
typedef struct tagLOGFONTA LOGFONTA;

class CVEditorOptions {
public:
    virtual void GetCellFont(LOGFONTA *font) = 0;
    virtual void GetHeadingFont(LOGFONTA *font) = 0;
    virtual void SetCellFont(const LOGFONTA *font) = 0;
    virtual void SetHeadingFont(const LOGFONTA *font) = 0;
    virtual COLORREF GetCellTextColour() = 0;      // 0x00BBGGRR
    virtual COLORREF GetCellHighlightColour() = 0; // back colour of the current cell
    virtual void ReservedOption1() {}
    virtual void ReservedOption2() {}
    virtual int GetUndoLevels() = 0; // commands kept by the view's history; below 1 keeps none
    virtual void ReservedOption3() {}
    virtual void ReservedOption4() {}
    virtual void ReservedOption5() {}
    virtual void ReservedOption6() {}
    virtual void ReservedOption7() {}
    virtual int GetMaxDisplayColWidth() = 0; // characters
    virtual void ReservedOption8() {}
    virtual bool IsEnterKeyTab() = 0; // Enter moves like Tab rather than down
    virtual void SetEnterKeyTab(bool enterIsTab) = 0;
    virtual void ReservedOption9() {}
    virtual void ReservedOption10() {}
    virtual void ReservedOption11() {}
    virtual bool IsRightJustifyingNumbers() = 0;
    virtual bool IsRightJustifyingText() = 0;
    virtual void ReservedOption12() {}
    virtual void SetGridLines(bool horizontal, bool vertical) = 0;
    virtual void GetGridLines(bool *horizontal, bool *vertical) = 0;

protected:
    ~CVEditorOptions() = default; // the library never deletes it
};
