// The root of the class framework: objects with run-time class information, strings, exceptions, files, time
// and geometry. Needs no window and no windows.h.
//
// Differences from MFC: text is always 8-bit. The geometry classes are included here, so that window-free
// sources have them. CArchive is only named: nothing can be serialized, and IMPLEMENT_SERIAL only records the
// schema number. The memory diagnostics (Dump, CMemoryState) do not exist.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <tchar.h>
#include <windef.h>

#include "afxdefs.h"

#include "afxobj.h"
#include "afxstr.h"
#include "afxexcept.h"
#include "afxtime.h"
#include "afxfile.h"
#include "atltypes.h"
