// Exchange and validation of dialog data.
#include "afxwin.h"
#include "threadstate.h"

#include <cerrno>
#include <cfloat>
#include <climits>
#include <cmath>

namespace {

constexpr LPCSTR kNeedInteger = "Please enter an integer.";
constexpr LPCSTR kNeedPositive = "Please enter a positive integer.";
constexpr LPCSTR kNeedByte = "Please enter an integer between 0 and 255.";
constexpr LPCSTR kNeedNumber = "Please enter a number.";
constexpr LPCSTR kNeedIntegerBetween = "Please enter an integer between %1 and %2.";
constexpr LPCSTR kNeedNumberBetween = "Please enter a number between %1 and %2.";
constexpr LPCSTR kNeedFewerChars = "Please enter no more than %1 characters.";

[[noreturn]] void Refuse(CDataExchange *dx, LPCSTR message) {
    AfxMessageBox(message, MB_OK | MB_ICONEXCLAMATION);
    dx->Fail();
}

CString TextOf(HWND control) {
    CString text;
    const int length = ::GetWindowTextLength(control);
    ::GetWindowText(control, text.GetBufferSetLength(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

// Setting a text that stands there already would move the caret.
void SetText(HWND control, LPCSTR text) {
    if (TextOf(control) != text)
        ::SetWindowText(control, text);
}

// The whole text must be one number; spaces around it do not matter.
bool ParseInteger(const CString &source, long long least, long long most, long long *value) {
    CString text = source;
    text.Trim();
    if (text.IsEmpty())
        return false;
    char *end = nullptr;
    errno = 0;
    *value = std::strtoll(text, &end, 10);
    return *end == '\0' && errno == 0 && *value >= least && *value <= most;
}

bool ParseNumber(const CString &source, double *value) {
    CString text = source;
    text.Trim();
    // strtod would also take words and hexadecimal numbers.
    if (text.IsEmpty() || text.SpanIncluding("0123456789+-.eE").GetLength() != text.GetLength())
        return false;
    char *end = nullptr;
    *value = std::strtod(text, &end);
    return *end == '\0' && end != text.GetString() && std::isfinite(*value);
}

template <class T>
void ExchangeInteger(CDataExchange *dx, int id, T &value, long long least, long long most, LPCSTR message) {
    const HWND control = dx->PrepareEditCtrl(id);
    if (!dx->m_bSaveAndValidate) {
        CString text;
        text.Format("%lld", static_cast<long long>(value));
        SetText(control, text);
        return;
    }
    long long parsed = 0;
    if (!ParseInteger(TextOf(control), least, most, &parsed))
        Refuse(dx, message);
    value = static_cast<T>(parsed);
}

template <class T> void ExchangeNumber(CDataExchange *dx, int id, T &value, int digits) {
    const HWND control = dx->PrepareEditCtrl(id);
    if (!dx->m_bSaveAndValidate) {
        CString text;
        text.Format("%.*g", digits, static_cast<double>(value));
        SetText(control, text);
        return;
    }
    double parsed = 0;
    if (!ParseNumber(TextOf(control), &parsed))
        Refuse(dx, kNeedNumber);
    value = static_cast<T>(parsed);
}

// A member that is out of range before it is shown is the program's own business; only entries are refused.
template <class T> void CheckIntegerRange(CDataExchange *dx, T value, T least, T most) {
    if (!dx->m_bSaveAndValidate || (value >= least && value <= most))
        return;
    CString low, high, message;
    low.Format("%lld", static_cast<long long>(least));
    high.Format("%lld", static_cast<long long>(most));
    const LPCSTR bounds[] = {low, high};
    AfxFormatStrings(message, kNeedIntegerBetween, bounds, 2);
    Refuse(dx, message);
}

void CheckNumberRange(CDataExchange *dx, double value, double least, double most, int precision) {
    if (!dx->m_bSaveAndValidate || (value >= least && value <= most))
        return;
    CString low, high, message;
    low.Format("%.*g", precision, least);
    high.Format("%.*g", precision, most);
    const LPCSTR bounds[] = {low, high};
    AfxFormatStrings(message, kNeedNumberBetween, bounds, 2);
    Refuse(dx, message);
}

void ExchangeIndex(CDataExchange *dx, int id, int &value, UINT get, UINT set) {
    const HWND control = dx->PrepareCtrl(id);
    if (dx->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessage(control, get, 0, 0));
    else
        ::SendMessage(control, set, static_cast<WPARAM>(value), 0);
}

void ExchangeListString(CDataExchange *dx, int id, CString &value, UINT select, bool exact) {
    const HWND control = dx->PrepareCtrl(id);
    if (dx->m_bSaveAndValidate) {
        const LRESULT index = ::SendMessage(control, LB_GETCURSEL, 0, 0);
        value.Empty();
        if (index == LB_ERR)
            return;
        const LRESULT length = ::SendMessage(control, LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
        char *buffer = value.GetBufferSetLength(static_cast<int>(length));
        ::SendMessage(control, LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer));
        value.ReleaseBuffer();
        return;
    }
    const LRESULT found =
        ::SendMessage(control, select, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(value.GetString()));
    if (exact)
        ::SendMessage(control, LB_SETCURSEL, static_cast<WPARAM>(found), 0);
}

void ExchangeComboString(CDataExchange *dx, int id, CString &value, UINT select, bool exact) {
    const HWND control = dx->PrepareCtrl(id);
    if (dx->m_bSaveAndValidate) {
        value = TextOf(control);
        return;
    }
    const LRESULT found =
        ::SendMessage(control, select, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(value.GetString()));
    if (exact)
        ::SendMessage(control, CB_SETCURSEL, static_cast<WPARAM>(found), 0);
    // A text that is in no list still belongs into the field.
    if (found == CB_ERR)
        SetText(control, value);
}

} // namespace

HWND CDataExchange::PrepareCtrl(int id) {
    const HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, id);
    if (!control)
        AfxThrowNotSupportedException();
    m_idLastControl = static_cast<UINT>(id);
    m_hWndLastControl = control;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int id) {
    const HWND control = PrepareCtrl(id);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_hWndLastControl) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessage(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

BOOL CWnd::UpdateData(BOOL saveAndValidate) {
    ThreadState &state = AfxThreadState();
    const HWND outer = state.notificationsLockedOut;
    CDataExchange exchange(this, saveAndValidate);
    BOOL done = FALSE;
    state.notificationsLockedOut = m_hWnd;
    try {
        DoDataExchange(&exchange);
        done = TRUE;
    } catch (CUserException *e) {
        // The user has been told.
        e->Delete();
    } catch (CException *e) {
        e->ReportError(MB_ICONEXCLAMATION);
        e->Delete();
    } catch (...) {
        state.notificationsLockedOut = outer;
        throw;
    }
    state.notificationsLockedOut = outer;
    return done;
}

void DDX_Control(CDataExchange *dx, int id, CWnd &control) {
    // Subclassed once, when the dialog begins; afterwards the object has its window.
    if (control.m_hWnd)
        return;
    if (!control.SubclassWindow(dx->PrepareCtrl(id)))
        AfxThrowNotSupportedException();
}

void DDX_Text(CDataExchange *dx, int id, CString &value) {
    const HWND control = dx->PrepareEditCtrl(id);
    if (dx->m_bSaveAndValidate)
        value = TextOf(control);
    else
        SetText(control, value);
}

void DDX_Text(CDataExchange *dx, int id, BYTE &value) {
    ExchangeInteger(dx, id, value, 0, UCHAR_MAX, kNeedByte);
}

void DDX_Text(CDataExchange *dx, int id, short &value) {
    ExchangeInteger(dx, id, value, SHRT_MIN, SHRT_MAX, kNeedInteger);
}

void DDX_Text(CDataExchange *dx, int id, int &value) {
    ExchangeInteger(dx, id, value, INT_MIN, INT_MAX, kNeedInteger);
}

void DDX_Text(CDataExchange *dx, int id, UINT &value) {
    ExchangeInteger(dx, id, value, 0, UINT_MAX, kNeedPositive);
}

void DDX_Text(CDataExchange *dx, int id, long &value) {
    ExchangeInteger(dx, id, value, LONG_MIN, LONG_MAX, kNeedInteger);
}

void DDX_Text(CDataExchange *dx, int id, DWORD &value) {
    ExchangeInteger(dx, id, value, 0, ULONG_MAX, kNeedPositive);
}

void DDX_Text(CDataExchange *dx, int id, float &value) {
    ExchangeNumber(dx, id, value, FLT_DIG);
}

void DDX_Text(CDataExchange *dx, int id, double &value) {
    ExchangeNumber(dx, id, value, DBL_DIG);
}

void DDX_Check(CDataExchange *dx, int id, int &value) {
    const HWND control = dx->PrepareCtrl(id);
    if (dx->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessage(control, BM_GETCHECK, 0, 0));
    else
        ::SendMessage(control, BM_SETCHECK, static_cast<WPARAM>(value >= 0 && value <= 2 ? value : 0), 0);
}

void DDX_Radio(CDataExchange *dx, int id, int &value) {
    HWND control = dx->PrepareCtrl(id);
    if (dx->m_bSaveAndValidate)
        value = -1;
    int index = 0;
    // The group runs to the next control with the style that begins one.
    do {
        if (::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) {
            if (!dx->m_bSaveAndValidate)
                ::SendMessage(control, BM_SETCHECK, index == value, 0);
            else if (::SendMessage(control, BM_GETCHECK, 0, 0))
                value = index;
            index++;
        }
        control = ::GetWindow(control, GW_HWNDNEXT);
    } while (control && !(::GetWindowLong(control, GWL_STYLE) & WS_GROUP));
}

void DDX_LBIndex(CDataExchange *dx, int id, int &value) {
    ExchangeIndex(dx, id, value, LB_GETCURSEL, LB_SETCURSEL);
}

void DDX_LBString(CDataExchange *dx, int id, CString &value) {
    ExchangeListString(dx, id, value, LB_SELECTSTRING, false);
}

void DDX_LBStringExact(CDataExchange *dx, int id, CString &value) {
    ExchangeListString(dx, id, value, LB_FINDSTRINGEXACT, true);
}

void DDX_CBIndex(CDataExchange *dx, int id, int &value) {
    ExchangeIndex(dx, id, value, CB_GETCURSEL, CB_SETCURSEL);
}

void DDX_CBString(CDataExchange *dx, int id, CString &value) {
    ExchangeComboString(dx, id, value, CB_SELECTSTRING, false);
}

void DDX_CBStringExact(CDataExchange *dx, int id, CString &value) {
    ExchangeComboString(dx, id, value, CB_FINDSTRINGEXACT, true);
}

void DDX_Scroll(CDataExchange *dx, int id, int &value) {
    const HWND control = dx->PrepareCtrl(id);
    if (dx->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}

void DDV_MaxChars(CDataExchange *dx, const CString &value, int most) {
    if (!dx->m_bSaveAndValidate) {
        // The field itself takes no more.
        if (dx->m_hWndLastControl && dx->m_bEditLastControl)
            ::SendMessage(dx->m_hWndLastControl, EM_LIMITTEXT, static_cast<WPARAM>(most), 0);
        return;
    }
    if (value.GetLength() <= most)
        return;
    CString limit, message;
    limit.Format("%d", most);
    const LPCSTR bounds[] = {limit};
    AfxFormatStrings(message, kNeedFewerChars, bounds, 1);
    Refuse(dx, message);
}

void DDV_MinMaxByte(CDataExchange *dx, BYTE value, BYTE least, BYTE most) {
    CheckIntegerRange(dx, value, least, most);
}

void DDV_MinMaxShort(CDataExchange *dx, short value, short least, short most) {
    CheckIntegerRange(dx, value, least, most);
}

void DDV_MinMaxInt(CDataExchange *dx, int value, int least, int most) {
    CheckIntegerRange(dx, value, least, most);
}

void DDV_MinMaxLong(CDataExchange *dx, long value, long least, long most) {
    CheckIntegerRange(dx, value, least, most);
}

void DDV_MinMaxUInt(CDataExchange *dx, UINT value, UINT least, UINT most) {
    CheckIntegerRange(dx, value, least, most);
}

void DDV_MinMaxDWord(CDataExchange *dx, DWORD value, DWORD least, DWORD most) {
    CheckIntegerRange(dx, value, least, most);
}

void DDV_MinMaxFloat(CDataExchange *dx, float value, float least, float most, int precision) {
    CheckNumberRange(dx, value, least, most, precision);
}

void DDV_MinMaxDouble(CDataExchange *dx, double value, double least, double most, int precision) {
    CheckNumberRange(dx, value, least, most, precision);
}
