// How an exception's message reaches the user: the application's message box, natively standard error.
#pragma once

#include "afxdefs.h"

int ReportToUser(LPCSTR text, UINT type, UINT helpContext);
