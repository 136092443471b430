#pragma once
#include <afxwin.h>
#include <ole2.h>
typedef DWORD DROPEFFECT;
class COleDataObject;
