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

HRESULT CFileDialog::AddCheckButton(DWORD id, const CString &label, BOOL checked) {
    CheckButton button{id, label, checked};
    m_buttons.Add(button);
    return S_OK;
}

HRESULT CFileDialog::GetCheckButtonState(DWORD id, BOOL &checked) {
    for (int i = 0; i < m_buttons.GetSize(); ++i) {
        if (m_buttons[i].id == id) {
            checked = m_buttons[i].checked;
            return S_OK;
        }
    }
    return E_INVALIDARG;
}

namespace {

// A dialog template as it lies in memory, in words.
class TemplateWriter {
public:
    explicit TemplateWriter(CArray<WORD, WORD> &words) : m_words(words) {}

    void Word(DWORD value) { m_words.Add(static_cast<WORD>(value)); }
    void Long(DWORD value) {
        Word(LOWORD(value));
        Word(HIWORD(value));
    }
    void Text(const CString &text) {
        WCHAR wide[256];
        const int length = ::MultiByteToWideChar(CP_ACP, 0, text, -1, wide, int(std::size(wide)));
        for (int i = 0; i < length - 1; ++i)
            Word(wide[i]);
        Word(0);
    }
    void AlignToLong() {
        if (m_words.GetSize() % 2 != 0)
            Word(0);
    }

private:
    CArray<WORD, WORD> &m_words;
};

constexpr int kButtonHeight = 12, kButtonLeft = 62, kButtonWidth = 220; // dialog units

} // namespace

// The part of the dialog that is the caller's: one check box below the other, where the names of files begin.
void CFileDialog::MakeButtonTemplate() {
    constexpr WORD kButtonClass = 0x0080;
    const int count = int(m_buttons.GetSize());
    m_buttonTemplate.RemoveAll();
    TemplateWriter out(m_buttonTemplate);
    out.Long(WS_CHILD | WS_CLIPSIBLINGS | DS_3DLOOK | DS_CONTROL);
    out.Long(0);
    for (int value : {count, 0, 0, kButtonLeft + kButtonWidth, count * kButtonHeight + 4, 0, 0, 0})
        out.Word(DWORD(value)); // controls, place and size, no menu, class or title
    for (int i = 0; i < count; ++i) {
        out.AlignToLong();
        out.Long(WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX);
        out.Long(0);
        for (int value : {kButtonLeft, i * kButtonHeight, kButtonWidth, kButtonHeight})
            out.Word(DWORD(value));
        out.Word(m_buttons[i].id);
        out.Word(0xFFFF);
        out.Word(kButtonClass);
        out.Text(m_buttons[i].label);
        out.Word(0);
    }
}

void CFileDialog::ReadButtons(HWND dialog) {
    for (int i = 0; i < m_buttons.GetSize(); ++i)
        m_buttons[i].checked = ::IsDlgButtonChecked(dialog, int(m_buttons[i].id)) == BST_CHECKED;
}

UINT_PTR CALLBACK CFileDialog::ButtonsHook(HWND dialog, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        auto *self = reinterpret_cast<CFileDialog *>(reinterpret_cast<OPENFILENAME *>(lParam)->lCustData);
        ::SetWindowLongPtr(dialog, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
        for (int i = 0; i < self->m_buttons.GetSize(); ++i) {
            ::SendDlgItemMessage(dialog, int(self->m_buttons[i].id), WM_SETFONT,
                                 ::SendMessage(::GetParent(dialog), WM_GETFONT, 0, 0), TRUE);
            ::CheckDlgButton(dialog, int(self->m_buttons[i].id), self->m_buttons[i].checked ? BST_CHECKED : 0);
        }
    } else if (message == WM_NOTIFY && reinterpret_cast<NMHDR *>(lParam)->code == CDN_FILEOK) {
        reinterpret_cast<CFileDialog *>(::GetWindowLongPtr(dialog, GWLP_USERDATA))->ReadButtons(dialog);
    }
    return 0;
}

INT_PTR CFileDialog::DoModal() {
    if (m_buttons.GetSize() > 0) {
        MakeButtonTemplate();
        m_ofn.Flags |= OFN_ENABLEHOOK | OFN_ENABLETEMPLATEHANDLE;
        m_ofn.hInstance = reinterpret_cast<HINSTANCE>(m_buttonTemplate.GetData());
        m_ofn.lCustData = reinterpret_cast<LPARAM>(this);
        m_ofn.lpfnHook = ButtonsHook;
    }
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
