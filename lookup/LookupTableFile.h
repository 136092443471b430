// CLookupTableFile: one compiled lookup table, and its file, of which docs/formats-lookup.md tells the bytes.
#pragma once

#include "lookup/LookupTree.h"
#include "lookup/MenuTree.h"

#include <afx.h>

class CVAppInterface;

class ORVANE_API CLookupTableFile : public CObject {
    DECLARE_DYNAMIC(CLookupTableFile)
public:
    CLookupTableFile();
    ~CLookupTableFile() override;
    // Throws what the archive and the trees throw; SerializeFile is what others call.
    void Serialize(CArchive &archive) override;

    // The host, whose wait cursor a fault ends. Borrowed; null for none.
    static void SetAppInterface(CVAppInterface *pAppInterface) { ms_pAppInterface = pAppInterface; }

    // Reads or writes the file; false with a text on failure. The file is opened for writing in both directions,
    // and for this table alone. A file that was longer keeps its tail. A load leaves the table as it was when it fails
    // before the first field, and without codes when it fails later.
    bool SerializeFile(LPCSTR path, CString &errorText, bool bStoring);
    // Asks the user to reload a file that is younger than what was last seen of it. False only when reloading was
    // tried and failed, of which the user has been told.
    bool CheckForModification(LPCSTR path);

    // Both throw CMemoryException; null is as the empty code, which is valid.
    bool IsValidCode(LPCSTR code);
    bool IsValidPartialCode(LPCSTR code);
    // Where a pick list for the code opens: the node of its level codes, else the root. Nodes go when the table is
    // loaded again; only the root stays.
    CMenuTree *GetMenuForCode(LPCSTR code);

    CMenuTree m_MenuTree;
    CLookupTree m_LookupTree;
    bool m_bCaseSensitive = true;
    bool m_bAcceptEmptyCells = true;
    bool m_bEnableValidation = true; // the trie exists
    bool m_bSortMenuItems = true;
    LONGLONG m_LastTime = -1; // the file's time last seen, in seconds; -1 for none

protected:
    static CVAppInterface *ms_pAppInterface;

private:
    void Store(CArchive &archive);
    void Load(CArchive &archive);
    bool Open(CFile &file, LPCSTR path, CString &errorText, bool bStoring);
    bool Transfer(CFile &file, CString &errorText, bool bStoring);
    bool Fail(CString &errorText, LPCSTR text, bool bStoring);
};
