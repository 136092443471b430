// The library's entry point: it notes where its dialog templates are.
#include "editorcore/ResourceScope.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH)
        CResourceScope::SetLibraryResources(instance);
    return TRUE;
}
