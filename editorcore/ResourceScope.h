// CResourceScope: around every modal dialog of the library, so that its template is found in the library's own
// resources. Leaving the scope puts the host's resource handle back.
#pragma once

#include <afxwin.h>

class ORVANE_API CResourceScope {
public:
    CResourceScope();
    ~CResourceScope();
    CResourceScope(const CResourceScope &) = delete;
    CResourceScope &operator=(const CResourceScope &) = delete;

    // The library's resources; null means the module's own.
    static void SetLibraryResources(HINSTANCE handle);

private:
    static HINSTANCE ms_hLibrary;
    HINSTANCE m_hSaved;
};
