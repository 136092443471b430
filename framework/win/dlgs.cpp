#include "afxdlgs.h"
#include "threadstate.h"

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

CCommonDialog::CCommonDialog(CWnd *parent) {
    m_pParentWnd = parent;
}

template <class SHOW> BOOL CCommonDialog::ShowModal(SHOW show) {
    HWND disabledTop = nullptr;
    const HWND owner = AfxSafeOwner(m_pParentWnd ? m_pParentWnd->m_hWnd : nullptr, &disabledTop);
    const BOOL chosen = show(owner);
    if (disabledTop)
        ::EnableWindow(disabledTop, TRUE);
    return chosen;
}

CFileDialog::CFileDialog(BOOL openFile, LPCTSTR defaultExtension, LPCTSTR fileName, DWORD flags,
                         LPCTSTR filter, CWnd *parent)
    : CCommonDialog(parent), m_ofn{}, m_bOpenFileDialog(openFile), m_strFilter(filter), m_szFileName{} {
    // The system ends each part of the filter with a null, the whole with two.
    m_strFilter.Replace('|', '\0');
    if (fileName)
        lstrcpyn(m_szFileName, fileName, sizeof m_szFileName);
    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = sizeof m_szFileName;
    m_ofn.lpstrDefExt = defaultExtension;
    m_ofn.Flags = flags | OFN_EXPLORER;
    if (!m_strFilter.IsEmpty())
        m_ofn.lpstrFilter = m_strFilter;
}

INT_PTR CFileDialog::DoModal() {
    const BOOL chosen = ShowModal([this](HWND owner) {
        m_ofn.hwndOwner = owner;
        return m_bOpenFileDialog ? ::GetOpenFileName(&m_ofn) : ::GetSaveFileName(&m_ofn);
    });
    return chosen ? IDOK : IDCANCEL;
}

CString CFileDialog::GetPathName() const {
    POSITION first = GetStartPosition();
    return m_ofn.Flags & OFN_ALLOWMULTISELECT && first ? GetNextPathName(first) : CString(m_ofn.lpstrFile);
}

CString CFileDialog::GetFileName() const {
    const CString path = GetPathName();
    return path.Mid(path.ReverseFind('\\') + 1);
}

CString CFileDialog::GetFileExt() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? CString() : name.Mid(dot + 1);
}

CString CFileDialog::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? name : name.Left(dot);
}

CString CFileDialog::GetFolderPath() const {
    const CString path = GetPathName();
    return path.Left(std::max(path.ReverseFind('\\'), 0));
}

// A position is the address of the next name in the buffer, which begins with the folder when there are
// several.
POSITION CFileDialog::GetStartPosition() const {
    return *m_ofn.lpstrFile ? reinterpret_cast<POSITION>(m_ofn.lpstrFile) : nullptr;
}

CString CFileDialog::GetNextPathName(POSITION &position) const {
    const char *name = reinterpret_cast<const char *>(position);
    const char *folder = m_ofn.lpstrFile;
    const char *second = folder + std::strlen(folder) + 1;
    const bool several = (m_ofn.Flags & OFN_ALLOWMULTISELECT) && *second;
    if (!several) {
        position = nullptr;
        return folder;
    }
    if (name == folder)
        name = second;
    const char *next = name + std::strlen(name) + 1;
    position = *next ? reinterpret_cast<POSITION>(const_cast<char *>(next)) : nullptr;
    CString path(folder);
    if (path.Right(1) != "\\")
        path += "\\";
    return path + name;
}

CColorDialog::CColorDialog(COLORREF initial, DWORD flags, CWnd *parent) : CCommonDialog(parent), m_cc{} {
    m_cc.lStructSize = sizeof m_cc;
    m_cc.rgbResult = initial;
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.Flags = flags | (initial ? CC_RGBINIT : 0);
}

INT_PTR CColorDialog::DoModal() {
    const BOOL chosen = ShowModal([this](HWND owner) {
        m_cc.hwndOwner = owner;
        return ::ChooseColor(&m_cc);
    });
    return chosen ? IDOK : IDCANCEL;
}

COLORREF *CColorDialog::GetSavedCustomColors() {
    static COLORREF colors[16];
    static const bool white = (std::fill_n(colors, 16, RGB(255, 255, 255)), true);
    (void)white;
    return colors;
}

CFontDialog::CFontDialog(LPLOGFONT initial, DWORD flags, CDC *printerDC, CWnd *parent)
    : CCommonDialog(parent), m_cf{}, m_lf{}, m_initial(initial), m_szStyleName{} {
    m_cf.lStructSize = sizeof m_cf;
    m_cf.Flags = flags;
    if (initial) {
        m_lf = *initial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    m_cf.lpLogFont = &m_lf;
    m_cf.lpszStyle = m_szStyleName;
    if (printerDC) {
        m_cf.hDC = printerDC->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

INT_PTR CFontDialog::DoModal() {
    const BOOL chosen = ShowModal([this](HWND owner) {
        m_cf.hwndOwner = owner;
        return ::ChooseFont(&m_cf);
    });
    if (chosen && m_initial)
        *m_initial = m_lf;
    return chosen ? IDOK : IDCANCEL;
}
