// The system's dialogs for files, colours and fonts.
//
// Differences from MFC: the dialogs' windows belong to the system alone, so their messages cannot be handled;
// printing dialogs and property sheets do not exist.
#pragma once

#include <afxwin.h>

class ORVANEFW_API CCommonDialog : public CDialog {
    DECLARE_DYNAMIC(CCommonDialog)
public:
    explicit CCommonDialog(CWnd *parent);

protected:
    // Shows the dialog between disabling the windows below it and enabling them again.
    template <class SHOW> BOOL ShowModal(SHOW show);
};

class ORVANEFW_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)
public:
    // The filter is "Text|*.pattern|...||".
    explicit CFileDialog(BOOL openFile, LPCTSTR defaultExtension = nullptr, LPCTSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR filter = nullptr,
                         CWnd *parent = nullptr);

    // IDOK or IDCANCEL.
    INT_PTR DoModal() override;
    CString GetPathName() const;
    CString GetFileName() const;  // name.ext
    CString GetFileExt() const;   // ext
    CString GetFileTitle() const; // name
    CString GetFolderPath() const;
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }
    // Check boxes below the list of files, added before DoModal; their state can be asked for after it.
    HRESULT AddCheckButton(DWORD id, const CString &label, BOOL checked);
    HRESULT GetCheckButtonState(DWORD id, BOOL &checked);
    // The chosen files of a dialog with OFN_ALLOWMULTISELECT.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION &position) const;

    OPENFILENAME m_ofn;

protected:
    BOOL m_bOpenFileDialog;
    CString m_strFilter;
    char m_szFileName[MAX_PATH * 32];

private:
    struct CheckButton {
        DWORD id;
        CString label;
        BOOL checked;
    };
    void MakeButtonTemplate();
    void ReadButtons(HWND dialog);
    static UINT_PTR CALLBACK ButtonsHook(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

    CArray<CheckButton, CheckButton &> m_buttons;
    CArray<WORD, WORD> m_buttonTemplate; // a dialog template in memory
};

class ORVANEFW_API CColorDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CColorDialog)
public:
    explicit CColorDialog(COLORREF initial = 0, DWORD flags = 0, CWnd *parent = nullptr);

    INT_PTR DoModal() override;
    void SetCurrentColor(COLORREF color) { m_cc.rgbResult = color; }
    COLORREF GetColor() const { return m_cc.rgbResult; }
    // Sixteen colours that all colour dialogs of the process share.
    static COLORREF *GetSavedCustomColors();

    CHOOSECOLOR m_cc;
};

class ORVANEFW_API CFontDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFontDialog)
public:
    // The initial font is written over with the chosen one.
    explicit CFontDialog(LPLOGFONT initial = nullptr, DWORD flags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC *printerDC = nullptr, CWnd *parent = nullptr);

    INT_PTR DoModal() override;
    void GetCurrentFont(LPLOGFONT logFont) const { *logFont = m_lf; }
    CString GetFaceName() const { return m_lf.lfFaceName; }
    CString GetStyleName() const { return m_szStyleName; }
    int GetSize() const { return m_cf.iPointSize; } // tenths of a point
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return m_lf.lfWeight; }
    BOOL IsBold() const { return m_lf.lfWeight == FW_BOLD; }
    BOOL IsItalic() const { return m_lf.lfItalic; }
    BOOL IsUnderline() const { return m_lf.lfUnderline; }
    BOOL IsStrikeOut() const { return m_lf.lfStrikeOut; }

    CHOOSEFONT m_cf;
    LOGFONT m_lf;

protected:
    LPLOGFONT m_initial;
    char m_szStyleName[64];
};
