// Windows, device contexts, menus, dialogs, controls, frames and the application object.
//
// Differences from MFC: all windows belong to one thread, so the handle maps are the process's. A method
// cannot be called through a null pointer, GetSafeHwnd included. The system's macro LoadString is undefined
// in favour of CString's member; the function is LoadStringA. There is no help system, no printing and no
// document or template architecture. The object of a frame or view whose window goes in a message loop within one of
// its handlers lives until that handler is done. Message handlers are named &Class::Handler in the maps.
#pragma once

#include <afx.h>

#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>
#include <shellapi.h>

// Macros of the system's headers whose names are methods here.
#undef GetCurrentTime
#undef GetNextWindow
#undef LoadString
#undef SubclassWindow

#include <afxcoll.h>
#include <afxtempl.h>
#include <afxres.h>

#include "afxcmdtarget.h"
#include "afxmsg_.h"
#include "afxgdi.h"
#include "afxdc.h"
#include "afxmenu.h"
#include "afxwnd.h"
#include "afxctrls.h"
#include "afxdd_.h"
#include "afxdlg.h"
#include "afxapp.h"
#include "afxframe.h"
