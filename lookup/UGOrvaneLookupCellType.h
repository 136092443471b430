// CUGOrvaneLookupCellType: what all lookup fields of all editors share, set from the lookup options.
#pragma once

#include <afx.h>

class ORVANE_API CUGOrvaneLookupCellType {
public:
    // `action` is one of lookup/InvalidCodeAction.h. Both texts are copied.
    static void SetInvalidCodeAction(int action, const char *replaceString, const char *prependString);
    static void SetAllowPartialCodes(bool allow) { ms_bAllowPartialCodes = allow; }
    static void SetBeepOnInvalidCode(bool beep) { ms_bBeepOnInvalidCode = beep; }
    static void SetResolvingSubMenus(bool resolve) { ms_bIsResolvingSubMenus = resolve; }
    static void SetValidateOnChar(bool validate) { ms_bValidateOnChar = validate; }

protected:
    static int ms_InvalidCodeAction;
    static bool ms_bAllowPartialCodes;   // the beginning of a code is a cell's text too
    static bool ms_bBeepOnInvalidCode;   // on an invalid code or key
    static bool ms_bIsResolvingSubMenus; // the pick list opens at the menu of the cell's code
    static bool ms_bValidateOnChar;      // each key is tested as it is typed
    static CString ms_sPrependString;
    static CString ms_sReplaceString;
};
