#include "editorcore/ResourceScope.h"

HINSTANCE CResourceScope::ms_hLibrary = nullptr;

CResourceScope::CResourceScope() {
    AFX_MODULE_STATE *state = AfxGetModuleState();
    m_hSaved = state->m_hCurrentResourceHandle;
    state->m_hCurrentResourceHandle = ms_hLibrary != nullptr ? ms_hLibrary : state->m_hCurrentInstanceHandle;
}

CResourceScope::~CResourceScope() {
    AfxGetModuleState()->m_hCurrentResourceHandle = m_hSaved;
}

void CResourceScope::SetLibraryResources(HINSTANCE handle) {
    ms_hLibrary = handle;
}
