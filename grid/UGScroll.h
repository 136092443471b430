// The two scroll bars. What they show and do is one piece of logic over an axis; the derived classes say which.
#pragma once

#include <afxwin.h>

#include "grid/UGScrollRange.h"

class CUGCtrl;
class CUGGridInfo;
class CUGHint;
struct CUGAxis;

class ORVANE_API CUGScroll : public CScrollBar {
    DECLARE_DYNAMIC(CUGScroll)

public:
    // Puts range and position of the axis into the bar, as far as they changed.
    void UpdateRange();
    // A scroll code of the bar (SB_LINEUP and so on), or of the wheel.
    void HandleScroll(UINT code);

    CUGCtrl *m_ctrl = nullptr; // both borrowed, set by the control
    CUGGridInfo *m_GI = nullptr;

protected:
    virtual CUGAxis &Axis() const = 0;
    virtual UGScrollRange ComputeRange() const = 0;
    virtual int Move(int how) = 0;
    virtual int SetLeading(long index) = 0;
    virtual bool IsLive() const = 0;    // the view follows the thumb while it is dragged
    virtual bool WantsHint() const = 0; // a hint is shown meanwhile
    virtual short HintAlignment() const = 0;
    virtual int AskHint(long index, int percent, CUGHint *hint) = 0; // what the notification answers
    // Where the hint hangs, in the control's client area: beside the bar, where the pointer is along it.
    virtual CPoint HintPoint(const CRect &client, CPoint pointer) const = 0;

    UGScrollRange m_range;

private:
    int TrackPosition();
    void ShowHint(long index, int percent);
    void Track(int position);

    long m_lastMax = -1;
    int m_lastPage = 0;
    int m_lastPosition = -1;
};

class ORVANE_API CUGVScroll : public CUGScroll {
    DECLARE_DYNAMIC(CUGVScroll)

protected:
    CUGAxis &Axis() const override;
    UGScrollRange ComputeRange() const override;
    int Move(int how) override;
    int SetLeading(long index) override;
    bool IsLive() const override;
    bool WantsHint() const override;
    short HintAlignment() const override;
    int AskHint(long index, int percent, CUGHint *hint) override;
    CPoint HintPoint(const CRect &client, CPoint pointer) const override;
};

class ORVANE_API CUGHScroll : public CUGScroll {
    DECLARE_DYNAMIC(CUGHScroll)

protected:
    CUGAxis &Axis() const override;
    UGScrollRange ComputeRange() const override;
    int Move(int how) override;
    int SetLeading(long index) override;
    bool IsLive() const override;
    bool WantsHint() const override;
    short HintAlignment() const override;
    int AskHint(long index, int percent, CUGHint *hint) override;
    CPoint HintPoint(const CRect &client, CPoint pointer) const override;
};
