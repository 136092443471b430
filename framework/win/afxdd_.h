// Exchange and validation of dialog data; part of afxwin.h.
#pragma once

#include "afxwnd.h"

// The state of one exchange, handed to DoDataExchange.
class ORVANEFW_API CDataExchange {
public:
    CDataExchange(CWnd *dialog, BOOL saveAndValidate)
        : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog), m_idLastControl(0),
          m_hWndLastControl(nullptr), m_bEditLastControl(FALSE) {}

    // The control, which is the one that Fail will put the focus on. CNotSupportedException without it.
    HWND PrepareCtrl(int id);
    HWND PrepareEditCtrl(int id);
    // Gives the focus back to the last control and throws CUserException.
    [[noreturn]] void Fail();

    BOOL m_bSaveAndValidate; // TRUE: from the controls to the members
    CWnd *m_pDlgWnd;
    UINT m_idLastControl;
    HWND m_hWndLastControl;
    BOOL m_bEditLastControl;
};

ORVANEFW_API void DDX_Control(CDataExchange *dx, int id, CWnd &control);
ORVANEFW_API void DDX_Text(CDataExchange *dx, int id, CString &value);
ORVANEFW_API void DDX_Text(CDataExchange *dx, int id, BYTE &value);
ORVANEFW_API void DDX_Text(CDataExchange *dx, int id, short &value);
ORVANEFW_API void DDX_Text(CDataExchange *dx, int id, int &value);
ORVANEFW_API void DDX_Text(CDataExchange *dx, int id, UINT &value);
ORVANEFW_API void DDX_Text(CDataExchange *dx, int id, long &value);
ORVANEFW_API void DDX_Text(CDataExchange *dx, int id, DWORD &value);
ORVANEFW_API void DDX_Text(CDataExchange *dx, int id, float &value);
ORVANEFW_API void DDX_Text(CDataExchange *dx, int id, double &value);
ORVANEFW_API void DDX_Check(CDataExchange *dx, int id, int &value);
// id is the first button of its group; the value counts the group's buttons from 0, -1 is none.
ORVANEFW_API void DDX_Radio(CDataExchange *dx, int id, int &value);
ORVANEFW_API void DDX_LBString(CDataExchange *dx, int id, CString &value);
ORVANEFW_API void DDX_LBStringExact(CDataExchange *dx, int id, CString &value);
ORVANEFW_API void DDX_LBIndex(CDataExchange *dx, int id, int &value);
ORVANEFW_API void DDX_CBString(CDataExchange *dx, int id, CString &value);
ORVANEFW_API void DDX_CBStringExact(CDataExchange *dx, int id, CString &value);
ORVANEFW_API void DDX_CBIndex(CDataExchange *dx, int id, int &value);
ORVANEFW_API void DDX_Scroll(CDataExchange *dx, int id, int &value);

// Each follows the DDX_ call of its value. Both bounds belong to the range.
ORVANEFW_API void DDV_MaxChars(CDataExchange *dx, const CString &value, int most);
ORVANEFW_API void DDV_MinMaxByte(CDataExchange *dx, BYTE value, BYTE least, BYTE most);
ORVANEFW_API void DDV_MinMaxShort(CDataExchange *dx, short value, short least, short most);
ORVANEFW_API void DDV_MinMaxInt(CDataExchange *dx, int value, int least, int most);
ORVANEFW_API void DDV_MinMaxLong(CDataExchange *dx, long value, long least, long most);
ORVANEFW_API void DDV_MinMaxUInt(CDataExchange *dx, UINT value, UINT least, UINT most);
ORVANEFW_API void DDV_MinMaxDWord(CDataExchange *dx, DWORD value, DWORD least, DWORD most);
ORVANEFW_API void DDV_MinMaxFloat(CDataExchange *dx, float value, float least, float most, int precision = 6);
ORVANEFW_API void DDV_MinMaxDouble(CDataExchange *dx, double value, double least, double most,
                                   int precision = 15);
