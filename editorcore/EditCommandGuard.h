// CEditCommandGuard: marks a running operation, so that the cell writes inside it mark no undo boundary of
// their own. Guards nest; the flag of the editor is cleared at the outermost end.
#pragma once

class CEditorCore;

class ORVANE_API CEditCommandGuard {
public:
    explicit CEditCommandGuard(CEditorCore *editor);
    ~CEditCommandGuard();
    CEditCommandGuard(const CEditCommandGuard &) = delete;
    CEditCommandGuard &operator=(const CEditCommandGuard &) = delete;

private:
    static int ms_nDepth; // shared by all editors: only one runs at a time
    CEditorCore *m_pEditor;
};
