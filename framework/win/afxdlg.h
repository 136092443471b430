// CDialog; part of afxwin.h.
#pragma once

#include "afxwnd.h"

class ORVANEFW_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    CDialog();
    // For DoModal; a null parent is the main window.
    explicit CDialog(LPCTSTR templateName, CWnd *parent = nullptr);
    explicit CDialog(UINT templateId, CWnd *parent = nullptr);
    ~CDialog() override;

    // Modeless.
    virtual BOOL Create(LPCTSTR templateName, CWnd *parent = nullptr);
    BOOL Create(UINT templateId, CWnd *parent = nullptr) { return Create(MAKEINTRESOURCE(templateId), parent); }
    BOOL CreateIndirect(const DLGTEMPLATE *dialogTemplate, CWnd *parent = nullptr, HINSTANCE module = nullptr);
    BOOL InitModalIndirect(const DLGTEMPLATE *dialogTemplate, CWnd *parent = nullptr);

    // The argument of EndDialog; -1 when the dialog could not be made.
    virtual INT_PTR DoModal();
    void EndDialog(int result);

    void NextDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, 0); }
    void PrevDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, 0); }
    void GotoDlgCtrl(CWnd *control) { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, WPARAM(control->m_hWnd), 1); }
    void SetDefID(UINT id) { ::SendMessage(m_hWnd, DM_SETDEFID, id, 0); }
    DWORD GetDefID() const { return DWORD(::SendMessage(m_hWnd, DM_GETDEFID, 0, 0)); }
    void MapDialogRect(LPRECT rect) const { ::MapDialogRect(m_hWnd, rect); }

    // TRUE lets the system set the focus to the first control.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont *) {}

    BOOL PreTranslateMessage(MSG *msg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void *pExtra, AFX_CMDHANDLERINFO *pHandlerInfo) override;

protected:
    // OnOK ends the dialog only when UpdateData succeeds.
    virtual void OnOK();
    virtual void OnCancel();
    virtual void PreInitDialog() {}
    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);
    HBRUSH OnCtlColor(CDC *dc, CWnd *control, UINT type);
    DECLARE_MESSAGE_MAP()

    UINT m_nIDHelp;
    LPCTSTR m_lpszTemplateName;
    const DLGTEMPLATE *m_lpDialogTemplate;
    CWnd *m_pParentWnd; // of DoModal

private:
    BOOL m_centre; // the template does not say where

    HWND ModalParent(HWND *disabledTop);
    BOOL CreateFromTemplate(const DLGTEMPLATE *dialogTemplate, HWND parent, HINSTANCE module);
    void RunModal(const DLGTEMPLATE *dialogTemplate, HWND parent, HINSTANCE module);
};
