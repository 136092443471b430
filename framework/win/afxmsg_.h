// The macros of message maps and the ways in which messages are unpacked; part of afxwin.h.
#pragma once

#include "afxcmdtarget.h"
#include <cstring>

class CDC;
class CListBox;
class CScrollBar;

#define DECLARE_MESSAGE_MAP()                                                                                \
protected:                                                                                                   \
    static const AFX_MSGMAP *GetThisMessageMap();                                                            \
    virtual const AFX_MSGMAP *GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP *theClass::GetMessageMap() const {                                                      \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP *theClass::GetThisMessageMap() {                                                        \
        typedef theClass ThisClass [[maybe_unused]];                                                         \
        typedef baseClass TheBaseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY _messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    { 0, 0, 0, 0, AfxSig_end, nullptr }                                                                      \
    }                                                                                                        \
    ;                                                                                                        \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, &_messageEntries[0]};            \
    return &messageMap;                                                                                      \
    }

// How a message is unpacked. The first letter is the result: void, bool, int, word, LRESULT or handle; the
// others are the arguments: w word, i int, b bool, p point, l LPARAM, s a structure's or text's address,
// W window, D device context, M menu, S scroll bar, L list box, h handle, P drop handle, U timer.
enum AfxSig : UINT_PTR {
    AfxSig_end = 0,
    AfxSig_lwl, // LRESULT (WPARAM, LPARAM)
    AfxSig_is,
    AfxSig_bs,
    AfxSig_vv,
    AfxSig_vw,
    AfxSig_bv,
    AfxSig_hv,
    AfxSig_wv,
    AfxSig_bD,
    AfxSig_vD,
    AfxSig_vwii,
    AfxSig_vii,
    AfxSig_vW,
    AfxSig_vWl,
    AfxSig_vwWb,
    AfxSig_vbl,
    AfxSig_bb,
    AfxSig_vbWW,
    AfxSig_vbw,
    AfxSig_vb,
    AfxSig_vU,
    AfxSig_vwww,
    AfxSig_vwp,
    AfxSig_bwsp,
    AfxSig_vwsp,
    AfxSig_iWww,
    AfxSig_bWww,
    AfxSig_lp,
    AfxSig_vwwS,
    AfxSig_hDWw,
    AfxSig_vis,
    AfxSig_iis,
    AfxSig_iwLw,
    AfxSig_vws,
    AfxSig_vM,
    AfxSig_vMwb,
    AfxSig_vwwh,
    AfxSig_vWp,
    AfxSig_vP,
    AfxSig_vs,
    AfxSig_vbs,
    AfxSig_vwl,
    AfxSig_vwWl,
    AfxSig_bsl,
    AfxSig_bWs,
    AfxSigCmd_v,        // void (), a command or control notification
    AfxSigCmd_b,        // BOOL (UINT)
    AfxSigCmd_RANGE,    // void (UINT)
    AfxSigCmdUI,        // void (CCmdUI *)
    AfxSigNotify_v,     // void (NMHDR *, LRESULT *)
    AfxSigNotify_b,     // BOOL (UINT, NMHDR *, LRESULT *)
    AfxSigNotify_RANGE, // void (UINT, NMHDR *, LRESULT *)
    AfxSigReflect_v,    // void (), a notification that came back to its control
    AfxSigReflect_b,    // BOOL ()
    AfxSigNotifyReflect_b, // BOOL (NMHDR *, LRESULT *)
    AfxSig_hDw,         // HBRUSH (CDC *, UINT), reflected
};

// All pointers to methods have one representation, so a handler is kept as the plainest of them.
template <class METHOD> inline AFX_PMSG AfxEncodeHandler(METHOD method) {
    static_assert(sizeof(METHOD) == sizeof(AFX_PMSG));
    AFX_PMSG plain;
    std::memcpy(&plain, &method, sizeof plain);
    return plain;
}

#define AFX_TARGET_HANDLER(result, fn, args) AfxEncodeHandler(static_cast<result(CCmdTarget::*) args>(fn))
#define AFX_WND_HANDLER(result, fn, args) AfxEncodeHandler(static_cast<result(CWnd::*) args>(fn))

// A reflected message is the parent's message moved up by this.
constexpr UINT WM_REFLECT_BASE = 0xBC00;
// The parent's messages of colours under one number.
constexpr UINT WM_CTLCOLOR = 0x0019;
struct AFX_CTLCOLOR {
    HWND hWnd;
    HDC hDC;
    UINT nCtlType;
};

#define ON_COMMAND(id, fn)                                                                                   \
    {WM_COMMAND, UINT(WORD(CN_COMMAND)), UINT(id), UINT(id), AfxSigCmd_v, AFX_TARGET_HANDLER(void, fn, ())},
#define ON_COMMAND_RANGE(id, idLast, fn)                                                                     \
    {WM_COMMAND,      UINT(WORD(CN_COMMAND)), UINT(id), UINT(idLast),                                         \
     AfxSigCmd_RANGE, AFX_TARGET_HANDLER(void, fn, (UINT))},
#define ON_COMMAND_EX(id, fn)                                                                                \
    {WM_COMMAND, UINT(WORD(CN_COMMAND)), UINT(id), UINT(id), AfxSigCmd_b, AFX_TARGET_HANDLER(BOOL, fn, (UINT))},
#define ON_COMMAND_EX_RANGE(id, idLast, fn)                                                                  \
    {WM_COMMAND,  UINT(WORD(CN_COMMAND)), UINT(id), UINT(idLast),                                             \
     AfxSigCmd_b, AFX_TARGET_HANDLER(BOOL, fn, (UINT))},
#define ON_UPDATE_COMMAND_UI(id, fn)                                                                         \
    {WM_COMMAND,  UINT(WORD(CN_UPDATE_COMMAND_UI)),        UINT(id), UINT(id),                                \
     AfxSigCmdUI, AFX_TARGET_HANDLER(void, fn, (CCmdUI *))},
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, fn)                                                           \
    {WM_COMMAND,  UINT(WORD(CN_UPDATE_COMMAND_UI)),        UINT(id), UINT(idLast),                            \
     AfxSigCmdUI, AFX_TARGET_HANDLER(void, fn, (CCmdUI *))},
#define ON_CONTROL(code, id, fn)                                                                             \
    {WM_COMMAND, UINT(WORD(code)), UINT(id), UINT(id), AfxSigCmd_v, AFX_TARGET_HANDLER(void, fn, ())},
#define ON_CONTROL_RANGE(code, id, idLast, fn)                                                               \
    {WM_COMMAND, UINT(WORD(code)), UINT(id), UINT(idLast), AfxSigCmd_RANGE, AFX_TARGET_HANDLER(void, fn, (UINT))},
#define ON_NOTIFY(code, id, fn)                                                                              \
    {WM_NOTIFY,      UINT(WORD(int(code))),                              UINT(id), UINT(id),                  \
     AfxSigNotify_v, AFX_TARGET_HANDLER(void, fn, (NMHDR *, LRESULT *))},
#define ON_NOTIFY_EX(code, id, fn)                                                                           \
    {WM_NOTIFY,      UINT(WORD(int(code))),                                    UINT(id), UINT(id),            \
     AfxSigNotify_b, AFX_TARGET_HANDLER(BOOL, fn, (UINT, NMHDR *, LRESULT *))},
#define ON_NOTIFY_RANGE(code, id, idLast, fn)                                                                \
    {WM_NOTIFY,          UINT(WORD(int(code))),                                    UINT(id), UINT(idLast),    \
     AfxSigNotify_RANGE, AFX_TARGET_HANDLER(void, fn, (UINT, NMHDR *, LRESULT *))},
#define ON_CONTROL_REFLECT(code, fn)                                                                         \
    {WM_COMMAND + WM_REFLECT_BASE, UINT(WORD(code)), 0, 0, AfxSigReflect_v, AFX_TARGET_HANDLER(void, fn, ())},
#define ON_CONTROL_REFLECT_EX(code, fn)                                                                      \
    {WM_COMMAND + WM_REFLECT_BASE, UINT(WORD(code)), 0, 0, AfxSigReflect_b, AFX_TARGET_HANDLER(BOOL, fn, ())},
#define ON_NOTIFY_REFLECT(code, fn)                                                                          \
    {WM_NOTIFY + WM_REFLECT_BASE, UINT(WORD(int(code))),                              0, 0,                   \
     AfxSigNotify_v,              AFX_TARGET_HANDLER(void, fn, (NMHDR *, LRESULT *))},
#define ON_NOTIFY_REFLECT_EX(code, fn)                                                                       \
    {WM_NOTIFY + WM_REFLECT_BASE, UINT(WORD(int(code))),                              0, 0,                   \
     AfxSigNotifyReflect_b,       AFX_TARGET_HANDLER(BOOL, fn, (NMHDR *, LRESULT *))},
#define ON_MESSAGE(message, fn)                                                                              \
    {UINT(message), 0, 0, 0, AfxSig_lwl, AFX_WND_HANDLER(LRESULT, fn, (WPARAM, LPARAM))},
// The variable holds the number that RegisterWindowMessage gave.
#define ON_REGISTERED_MESSAGE(variable, fn)                                                                  \
    {0xC000, 0, 0, 0, reinterpret_cast<UINT_PTR>(&variable), AFX_WND_HANDLER(LRESULT, fn, (WPARAM, LPARAM))},

#define ON_EN_SETFOCUS(id, fn) ON_CONTROL(EN_SETFOCUS, id, fn)
#define ON_EN_KILLFOCUS(id, fn) ON_CONTROL(EN_KILLFOCUS, id, fn)
#define ON_EN_CHANGE(id, fn) ON_CONTROL(EN_CHANGE, id, fn)
#define ON_EN_UPDATE(id, fn) ON_CONTROL(EN_UPDATE, id, fn)
#define ON_EN_ERRSPACE(id, fn) ON_CONTROL(EN_ERRSPACE, id, fn)
#define ON_EN_MAXTEXT(id, fn) ON_CONTROL(EN_MAXTEXT, id, fn)
#define ON_EN_HSCROLL(id, fn) ON_CONTROL(EN_HSCROLL, id, fn)
#define ON_EN_VSCROLL(id, fn) ON_CONTROL(EN_VSCROLL, id, fn)
#define ON_BN_CLICKED(id, fn) ON_CONTROL(BN_CLICKED, id, fn)
#define ON_BN_DOUBLECLICKED(id, fn) ON_CONTROL(BN_DOUBLECLICKED, id, fn)
#define ON_BN_SETFOCUS(id, fn) ON_CONTROL(BN_SETFOCUS, id, fn)
#define ON_BN_KILLFOCUS(id, fn) ON_CONTROL(BN_KILLFOCUS, id, fn)
#define ON_LBN_ERRSPACE(id, fn) ON_CONTROL(LBN_ERRSPACE, id, fn)
#define ON_LBN_SELCHANGE(id, fn) ON_CONTROL(LBN_SELCHANGE, id, fn)
#define ON_LBN_DBLCLK(id, fn) ON_CONTROL(LBN_DBLCLK, id, fn)
#define ON_LBN_SELCANCEL(id, fn) ON_CONTROL(LBN_SELCANCEL, id, fn)
#define ON_LBN_SETFOCUS(id, fn) ON_CONTROL(LBN_SETFOCUS, id, fn)
#define ON_LBN_KILLFOCUS(id, fn) ON_CONTROL(LBN_KILLFOCUS, id, fn)
#define CLBN_CHKCHANGE 40
#define ON_CLBN_CHKCHANGE(id, fn) ON_CONTROL(CLBN_CHKCHANGE, id, fn)
#define ON_CBN_ERRSPACE(id, fn) ON_CONTROL(CBN_ERRSPACE, id, fn)
#define ON_CBN_SELCHANGE(id, fn) ON_CONTROL(CBN_SELCHANGE, id, fn)
#define ON_CBN_DBLCLK(id, fn) ON_CONTROL(CBN_DBLCLK, id, fn)
#define ON_CBN_SETFOCUS(id, fn) ON_CONTROL(CBN_SETFOCUS, id, fn)
#define ON_CBN_KILLFOCUS(id, fn) ON_CONTROL(CBN_KILLFOCUS, id, fn)
#define ON_CBN_EDITCHANGE(id, fn) ON_CONTROL(CBN_EDITCHANGE, id, fn)
#define ON_CBN_EDITUPDATE(id, fn) ON_CONTROL(CBN_EDITUPDATE, id, fn)
#define ON_CBN_DROPDOWN(id, fn) ON_CONTROL(CBN_DROPDOWN, id, fn)
#define ON_CBN_CLOSEUP(id, fn) ON_CONTROL(CBN_CLOSEUP, id, fn)
#define ON_CBN_SELENDOK(id, fn) ON_CONTROL(CBN_SELENDOK, id, fn)
#define ON_CBN_SELENDCANCEL(id, fn) ON_CONTROL(CBN_SELENDCANCEL, id, fn)
#define ON_STN_CLICKED(id, fn) ON_CONTROL(STN_CLICKED, id, fn)
#define ON_STN_DBLCLK(id, fn) ON_CONTROL(STN_DBLCLK, id, fn)
#define ON_STN_ENABLE(id, fn) ON_CONTROL(STN_ENABLE, id, fn)
#define ON_STN_DISABLE(id, fn) ON_CONTROL(STN_DISABLE, id, fn)

// A window message, whose handler has a fixed name.
#define AFX_ON_WM(message, sig, result, name, args)                                                          \
    {message, 0, 0, 0, sig, AFX_WND_HANDLER(result, &ThisClass::name, args)},

// The reflected messages of a control.
#define ON_WM_CTLCOLOR_REFLECT()                                                                             \
    AFX_ON_WM(WM_CTLCOLOR + WM_REFLECT_BASE, AfxSig_hDw, HBRUSH, CtlColor, (CDC *, UINT))
#define ON_WM_DRAWITEM_REFLECT()                                                                             \
    AFX_ON_WM(WM_DRAWITEM + WM_REFLECT_BASE, AfxSig_vs, void, DrawItem, (LPDRAWITEMSTRUCT))
#define ON_WM_MEASUREITEM_REFLECT()                                                                          \
    AFX_ON_WM(WM_MEASUREITEM + WM_REFLECT_BASE, AfxSig_vs, void, MeasureItem, (LPMEASUREITEMSTRUCT))

#define ON_WM_CREATE() AFX_ON_WM(WM_CREATE, AfxSig_is, int, OnCreate, (LPCREATESTRUCT))
#define ON_WM_NCCREATE() AFX_ON_WM(WM_NCCREATE, AfxSig_bs, BOOL, OnNcCreate, (LPCREATESTRUCT))
#define ON_WM_DESTROY() AFX_ON_WM(WM_DESTROY, AfxSig_vv, void, OnDestroy, ())
#define ON_WM_NCDESTROY() AFX_ON_WM(WM_NCDESTROY, AfxSig_vv, void, OnNcDestroy, ())
#define ON_WM_PAINT() AFX_ON_WM(WM_PAINT, AfxSig_vv, void, OnPaint, ())
#define ON_WM_NCPAINT() AFX_ON_WM(WM_NCPAINT, AfxSig_vv, void, OnNcPaint, ())
#define ON_WM_CLOSE() AFX_ON_WM(WM_CLOSE, AfxSig_vv, void, OnClose, ())
#define ON_WM_CANCELMODE() AFX_ON_WM(WM_CANCELMODE, AfxSig_vv, void, OnCancelMode, ())
#define ON_WM_SYSCOLORCHANGE() AFX_ON_WM(WM_SYSCOLORCHANGE, AfxSig_vv, void, OnSysColorChange, ())
#define ON_WM_TIMECHANGE() AFX_ON_WM(WM_TIMECHANGE, AfxSig_vv, void, OnTimeChange, ())
#define ON_WM_FONTCHANGE() AFX_ON_WM(WM_FONTCHANGE, AfxSig_vv, void, OnFontChange, ())
#define ON_WM_MOUSELEAVE() AFX_ON_WM(WM_MOUSELEAVE, AfxSig_vv, void, OnMouseLeave, ())
#define ON_WM_CHILDACTIVATE() AFX_ON_WM(WM_CHILDACTIVATE, AfxSig_vv, void, OnChildActivate, ())
#define ON_WM_DRAWCLIPBOARD() AFX_ON_WM(WM_DRAWCLIPBOARD, AfxSig_vv, void, OnDrawClipboard, ())
#define ON_WM_DESTROYCLIPBOARD() AFX_ON_WM(WM_DESTROYCLIPBOARD, AfxSig_vv, void, OnDestroyClipboard, ())
#define ON_WM_RENDERALLFORMATS() AFX_ON_WM(WM_RENDERALLFORMATS, AfxSig_vv, void, OnRenderAllFormats, ())
#define ON_WM_RENDERFORMAT() AFX_ON_WM(WM_RENDERFORMAT, AfxSig_vw, void, OnRenderFormat, (UINT))
#define ON_WM_QUERYENDSESSION() AFX_ON_WM(WM_QUERYENDSESSION, AfxSig_bv, BOOL, OnQueryEndSession, ())
#define ON_WM_QUERYNEWPALETTE() AFX_ON_WM(WM_QUERYNEWPALETTE, AfxSig_bv, BOOL, OnQueryNewPalette, ())
#define ON_WM_QUERYOPEN() AFX_ON_WM(WM_QUERYOPEN, AfxSig_bv, BOOL, OnQueryOpen, ())
#define ON_WM_QUERYDRAGICON() AFX_ON_WM(WM_QUERYDRAGICON, AfxSig_hv, HCURSOR, OnQueryDragIcon, ())
#define ON_WM_GETDLGCODE() AFX_ON_WM(WM_GETDLGCODE, AfxSig_wv, UINT, OnGetDlgCode, ())
#define ON_WM_ERASEBKGND() AFX_ON_WM(WM_ERASEBKGND, AfxSig_bD, BOOL, OnEraseBkgnd, (CDC *))
#define ON_WM_ICONERASEBKGND() AFX_ON_WM(WM_ICONERASEBKGND, AfxSig_vD, void, OnIconEraseBkgnd, (CDC *))
#define ON_WM_SIZE() AFX_ON_WM(WM_SIZE, AfxSig_vwii, void, OnSize, (UINT, int, int))
#define ON_WM_MOVE() AFX_ON_WM(WM_MOVE, AfxSig_vii, void, OnMove, (int, int))
#define ON_WM_SETFOCUS() AFX_ON_WM(WM_SETFOCUS, AfxSig_vW, void, OnSetFocus, (CWnd *))
#define ON_WM_KILLFOCUS() AFX_ON_WM(WM_KILLFOCUS, AfxSig_vW, void, OnKillFocus, (CWnd *))
#define ON_WM_PALETTECHANGED() AFX_ON_WM(WM_PALETTECHANGED, AfxSig_vW, void, OnPaletteChanged, (CWnd *))
#define ON_WM_PALETTEISCHANGING()                                                                            \
    AFX_ON_WM(WM_PALETTEISCHANGING, AfxSig_vW, void, OnPaletteIsChanging, (CWnd *))
#define ON_WM_CAPTURECHANGED() AFX_ON_WM(WM_CAPTURECHANGED, AfxSig_vWl, void, OnCaptureChanged, (CWnd *))
#define ON_WM_ACTIVATE() AFX_ON_WM(WM_ACTIVATE, AfxSig_vwWb, void, OnActivate, (UINT, CWnd *, BOOL))
#define ON_WM_ACTIVATEAPP() AFX_ON_WM(WM_ACTIVATEAPP, AfxSig_vbl, void, OnActivateApp, (BOOL, DWORD))
#define ON_WM_NCACTIVATE() AFX_ON_WM(WM_NCACTIVATE, AfxSig_bb, BOOL, OnNcActivate, (BOOL))
#define ON_WM_MDIACTIVATE()                                                                                  \
    AFX_ON_WM(WM_MDIACTIVATE, AfxSig_vbWW, void, OnMDIActivate, (BOOL, CWnd *, CWnd *))
#define ON_WM_SHOWWINDOW() AFX_ON_WM(WM_SHOWWINDOW, AfxSig_vbw, void, OnShowWindow, (BOOL, UINT))
#define ON_WM_ENABLE() AFX_ON_WM(WM_ENABLE, AfxSig_vb, void, OnEnable, (BOOL))
#define ON_WM_ENDSESSION() AFX_ON_WM(WM_ENDSESSION, AfxSig_vb, void, OnEndSession, (BOOL))
#define ON_WM_ENTERMENULOOP() AFX_ON_WM(WM_ENTERMENULOOP, AfxSig_vb, void, OnEnterMenuLoop, (BOOL))
#define ON_WM_EXITMENULOOP() AFX_ON_WM(WM_EXITMENULOOP, AfxSig_vb, void, OnExitMenuLoop, (BOOL))
#define ON_WM_TIMER() AFX_ON_WM(WM_TIMER, AfxSig_vU, void, OnTimer, (UINT_PTR))
#define ON_WM_KEYDOWN() AFX_ON_WM(WM_KEYDOWN, AfxSig_vwww, void, OnKeyDown, (UINT, UINT, UINT))
#define ON_WM_KEYUP() AFX_ON_WM(WM_KEYUP, AfxSig_vwww, void, OnKeyUp, (UINT, UINT, UINT))
#define ON_WM_CHAR() AFX_ON_WM(WM_CHAR, AfxSig_vwww, void, OnChar, (UINT, UINT, UINT))
#define ON_WM_DEADCHAR() AFX_ON_WM(WM_DEADCHAR, AfxSig_vwww, void, OnDeadChar, (UINT, UINT, UINT))
#define ON_WM_SYSKEYDOWN() AFX_ON_WM(WM_SYSKEYDOWN, AfxSig_vwww, void, OnSysKeyDown, (UINT, UINT, UINT))
#define ON_WM_SYSKEYUP() AFX_ON_WM(WM_SYSKEYUP, AfxSig_vwww, void, OnSysKeyUp, (UINT, UINT, UINT))
#define ON_WM_SYSCHAR() AFX_ON_WM(WM_SYSCHAR, AfxSig_vwww, void, OnSysChar, (UINT, UINT, UINT))
#define ON_WM_SYSDEADCHAR() AFX_ON_WM(WM_SYSDEADCHAR, AfxSig_vwww, void, OnSysDeadChar, (UINT, UINT, UINT))
#define ON_WM_MOUSEMOVE() AFX_ON_WM(WM_MOUSEMOVE, AfxSig_vwp, void, OnMouseMove, (UINT, CPoint))
#define ON_WM_MOUSEHOVER() AFX_ON_WM(WM_MOUSEHOVER, AfxSig_vwp, void, OnMouseHover, (UINT, CPoint))
#define ON_WM_LBUTTONDOWN() AFX_ON_WM(WM_LBUTTONDOWN, AfxSig_vwp, void, OnLButtonDown, (UINT, CPoint))
#define ON_WM_LBUTTONUP() AFX_ON_WM(WM_LBUTTONUP, AfxSig_vwp, void, OnLButtonUp, (UINT, CPoint))
#define ON_WM_LBUTTONDBLCLK() AFX_ON_WM(WM_LBUTTONDBLCLK, AfxSig_vwp, void, OnLButtonDblClk, (UINT, CPoint))
#define ON_WM_RBUTTONDOWN() AFX_ON_WM(WM_RBUTTONDOWN, AfxSig_vwp, void, OnRButtonDown, (UINT, CPoint))
#define ON_WM_RBUTTONUP() AFX_ON_WM(WM_RBUTTONUP, AfxSig_vwp, void, OnRButtonUp, (UINT, CPoint))
#define ON_WM_RBUTTONDBLCLK() AFX_ON_WM(WM_RBUTTONDBLCLK, AfxSig_vwp, void, OnRButtonDblClk, (UINT, CPoint))
#define ON_WM_MBUTTONDOWN() AFX_ON_WM(WM_MBUTTONDOWN, AfxSig_vwp, void, OnMButtonDown, (UINT, CPoint))
#define ON_WM_MBUTTONUP() AFX_ON_WM(WM_MBUTTONUP, AfxSig_vwp, void, OnMButtonUp, (UINT, CPoint))
#define ON_WM_MBUTTONDBLCLK() AFX_ON_WM(WM_MBUTTONDBLCLK, AfxSig_vwp, void, OnMButtonDblClk, (UINT, CPoint))
#define ON_WM_NCMOUSEMOVE() AFX_ON_WM(WM_NCMOUSEMOVE, AfxSig_vwp, void, OnNcMouseMove, (UINT, CPoint))
#define ON_WM_NCLBUTTONDOWN() AFX_ON_WM(WM_NCLBUTTONDOWN, AfxSig_vwp, void, OnNcLButtonDown, (UINT, CPoint))
#define ON_WM_NCLBUTTONUP() AFX_ON_WM(WM_NCLBUTTONUP, AfxSig_vwp, void, OnNcLButtonUp, (UINT, CPoint))
#define ON_WM_NCLBUTTONDBLCLK()                                                                              \
    AFX_ON_WM(WM_NCLBUTTONDBLCLK, AfxSig_vwp, void, OnNcLButtonDblClk, (UINT, CPoint))
#define ON_WM_NCRBUTTONDOWN() AFX_ON_WM(WM_NCRBUTTONDOWN, AfxSig_vwp, void, OnNcRButtonDown, (UINT, CPoint))
#define ON_WM_NCRBUTTONUP() AFX_ON_WM(WM_NCRBUTTONUP, AfxSig_vwp, void, OnNcRButtonUp, (UINT, CPoint))
#define ON_WM_MOUSEWHEEL() AFX_ON_WM(WM_MOUSEWHEEL, AfxSig_bwsp, BOOL, OnMouseWheel, (UINT, short, CPoint))
#define ON_WM_MOUSEHWHEEL() AFX_ON_WM(WM_MOUSEHWHEEL, AfxSig_vwsp, void, OnMouseHWheel, (UINT, short, CPoint))
#define ON_WM_MOUSEACTIVATE()                                                                                \
    AFX_ON_WM(WM_MOUSEACTIVATE, AfxSig_iWww, int, OnMouseActivate, (CWnd *, UINT, UINT))
#define ON_WM_SETCURSOR() AFX_ON_WM(WM_SETCURSOR, AfxSig_bWww, BOOL, OnSetCursor, (CWnd *, UINT, UINT))
#define ON_WM_NCHITTEST() AFX_ON_WM(WM_NCHITTEST, AfxSig_lp, LRESULT, OnNcHitTest, (CPoint))
#define ON_WM_HSCROLL() AFX_ON_WM(WM_HSCROLL, AfxSig_vwwS, void, OnHScroll, (UINT, UINT, CScrollBar *))
#define ON_WM_VSCROLL() AFX_ON_WM(WM_VSCROLL, AfxSig_vwwS, void, OnVScroll, (UINT, UINT, CScrollBar *))
#define ON_WM_CTLCOLOR() AFX_ON_WM(WM_CTLCOLOR, AfxSig_hDWw, HBRUSH, OnCtlColor, (CDC *, CWnd *, UINT))
#define ON_WM_DRAWITEM() AFX_ON_WM(WM_DRAWITEM, AfxSig_vis, void, OnDrawItem, (int, LPDRAWITEMSTRUCT))
#define ON_WM_MEASUREITEM()                                                                                  \
    AFX_ON_WM(WM_MEASUREITEM, AfxSig_vis, void, OnMeasureItem, (int, LPMEASUREITEMSTRUCT))
#define ON_WM_DELETEITEM() AFX_ON_WM(WM_DELETEITEM, AfxSig_vis, void, OnDeleteItem, (int, LPDELETEITEMSTRUCT))
#define ON_WM_COMPAREITEM()                                                                                  \
    AFX_ON_WM(WM_COMPAREITEM, AfxSig_iis, int, OnCompareItem, (int, LPCOMPAREITEMSTRUCT))
#define ON_WM_VKEYTOITEM() AFX_ON_WM(WM_VKEYTOITEM, AfxSig_iwLw, int, OnVKeyToItem, (UINT, CListBox *, UINT))
#define ON_WM_CHARTOITEM() AFX_ON_WM(WM_CHARTOITEM, AfxSig_iwLw, int, OnCharToItem, (UINT, CListBox *, UINT))
#define ON_WM_SETTINGCHANGE() AFX_ON_WM(WM_SETTINGCHANGE, AfxSig_vws, void, OnSettingChange, (UINT, LPCTSTR))
#define ON_WM_INITMENU() AFX_ON_WM(WM_INITMENU, AfxSig_vM, void, OnInitMenu, (CMenu *))
#define ON_WM_INITMENUPOPUP()                                                                                \
    AFX_ON_WM(WM_INITMENUPOPUP, AfxSig_vMwb, void, OnInitMenuPopup, (CMenu *, UINT, BOOL))
#define ON_WM_MENUSELECT() AFX_ON_WM(WM_MENUSELECT, AfxSig_vwwh, void, OnMenuSelect, (UINT, UINT, HMENU))
#define ON_WM_CONTEXTMENU() AFX_ON_WM(WM_CONTEXTMENU, AfxSig_vWp, void, OnContextMenu, (CWnd *, CPoint))
#define ON_WM_DROPFILES() AFX_ON_WM(WM_DROPFILES, AfxSig_vP, void, OnDropFiles, (HDROP))
#define ON_WM_GETMINMAXINFO() AFX_ON_WM(WM_GETMINMAXINFO, AfxSig_vs, void, OnGetMinMaxInfo, (MINMAXINFO *))
#define ON_WM_WINDOWPOSCHANGED()                                                                             \
    AFX_ON_WM(WM_WINDOWPOSCHANGED, AfxSig_vs, void, OnWindowPosChanged, (WINDOWPOS *))
#define ON_WM_WINDOWPOSCHANGING()                                                                            \
    AFX_ON_WM(WM_WINDOWPOSCHANGING, AfxSig_vs, void, OnWindowPosChanging, (WINDOWPOS *))
#define ON_WM_NCCALCSIZE()                                                                                   \
    AFX_ON_WM(WM_NCCALCSIZE, AfxSig_vbs, void, OnNcCalcSize, (BOOL, NCCALCSIZE_PARAMS *))
#define ON_WM_SYSCOMMAND() AFX_ON_WM(WM_SYSCOMMAND, AfxSig_vwl, void, OnSysCommand, (UINT, LPARAM))
#define ON_WM_PARENTNOTIFY() AFX_ON_WM(WM_PARENTNOTIFY, AfxSig_vwl, void, OnParentNotify, (UINT, LPARAM))
#define ON_WM_STYLECHANGED()                                                                                 \
    AFX_ON_WM(WM_STYLECHANGED, AfxSig_vis, void, OnStyleChanged, (int, LPSTYLESTRUCT))
#define ON_WM_STYLECHANGING()                                                                                \
    AFX_ON_WM(WM_STYLECHANGING, AfxSig_vis, void, OnStyleChanging, (int, LPSTYLESTRUCT))
#define ON_WM_ENTERIDLE() AFX_ON_WM(WM_ENTERIDLE, AfxSig_vwWl, void, OnEnterIdle, (UINT, CWnd *))
#define ON_WM_HELPINFO() AFX_ON_WM(WM_HELP, AfxSig_bsl, BOOL, OnHelpInfo, (HELPINFO *))
#define ON_WM_COPYDATA() AFX_ON_WM(WM_COPYDATA, AfxSig_bWs, BOOL, OnCopyData, (CWnd *, COPYDATASTRUCT *))
#define ON_WM_SIZING() AFX_ON_WM(WM_SIZING, AfxSig_vws, void, OnSizing, (UINT, LPRECT))
#define ON_WM_MOVING() AFX_ON_WM(WM_MOVING, AfxSig_vws, void, OnMoving, (UINT, LPRECT))
