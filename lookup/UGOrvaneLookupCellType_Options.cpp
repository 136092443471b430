// The settings that all lookup fields share.
#include "lookup/UGOrvaneLookupCellType.h"

#include "lookup/InvalidCodeAction.h"

int CUGOrvaneLookupCellType::ms_InvalidCodeAction = kInvalidCodeReject;
bool CUGOrvaneLookupCellType::ms_bAllowPartialCodes = false;
bool CUGOrvaneLookupCellType::ms_bBeepOnInvalidCode = false;
bool CUGOrvaneLookupCellType::ms_bIsResolvingSubMenus = false;
bool CUGOrvaneLookupCellType::ms_bValidateOnChar = false;
CString CUGOrvaneLookupCellType::ms_sPrependString;
CString CUGOrvaneLookupCellType::ms_sReplaceString;

void CUGOrvaneLookupCellType::SetInvalidCodeAction(int action, const char *replaceString,
                                                   const char *prependString) {
    ms_InvalidCodeAction = action;
    ms_sReplaceString = replaceString;
    ms_sPrependString = prependString;
}
