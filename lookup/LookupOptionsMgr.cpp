#include "lookup/LookupOptionsMgr.h"

#include "editorcore/AppInterface.h"
#include "editorcore/ResourceScope.h"
#include "lookup/InvalidCodeAction.h"
#include "lookup/LookupList.h"
#include "lookup/LookupPasswordDlgs.h"
#include "lookup/LookupRegKey.h"
#include "lookup/ScramblePassword.h"
#include "lookup/UGOrvaneLookupCellType.h"

CVAppInterface *CLookupOptionsMgr::ms_pAppInterface = nullptr;

namespace {

constexpr int kMaxPasswordLength = 8;

// What the host tells of the options, in the order of its operations.
struct Options {
    bool validate = false;
    bool validateOnKey = false;
    bool resolveSubMenus = false;
    bool allowPartialCodes = false;
    bool beepOnInvalid = false;
    int invalidAction = 0;
    CString replaceString;
    CString prependString;
};

void ApplySwitches(const Options &options) {
    CUGOrvaneLookupCellType::SetValidateOnChar(options.validateOnKey);
    CUGOrvaneLookupCellType::SetResolvingSubMenus(options.resolveSubMenus);
    CUGOrvaneLookupCellType::SetAllowPartialCodes(options.allowPartialCodes);
    CLookupList::ms_bAllowPartial = options.allowPartialCodes;
    CUGOrvaneLookupCellType::SetBeepOnInvalidCode(options.beepOnInvalid);
}

void ApplyAction(const Options &options, int action) {
    CUGOrvaneLookupCellType::SetInvalidCodeAction(action, options.replaceString, options.prependString);
}

// No exception leaves a command.
template <class Work> void RunInMemoryOrTell(Work work) {
    try {
        work();
    } catch (CMemoryException *e) {
        e->Delete();
        AfxMessageBox("Out of memory!", MB_ICONHAND, 0);
    }
}

} // namespace

void CLookupOptionsMgr::InitialSetAllOptions(CVAppInterface *host) {
    constexpr UINT kPresetWidth = 10;
    ms_pAppInterface = host;
    RunInMemoryOrTell([host] {
        Options options;
        host->GetLookupOptions(&options.validate, &options.validateOnKey, &options.resolveSubMenus,
                               &options.allowPartialCodes, &options.beepOnInvalid, &options.invalidAction,
                               &options.replaceString, &options.prependString);
        ApplySwitches(options);
        UINT code = kPresetWidth, description = kPresetWidth;
        host->GetDefaultFieldWidths(&code, &description);
        host->SetDefaultFieldWidths(code, description);
        ApplyAction(options, InvalidCodeActionAtStart(options.validate, options.invalidAction));
    });
}

void CLookupOptionsMgr::OnUserOptions() {
    RunInMemoryOrTell([] {
        Options options;
        UINT code = 0, description = 0;
        if (!ms_pAppInterface->EditLookupUserOptions(
                &options.validate, &options.validateOnKey, &options.resolveSubMenus,
                &options.allowPartialCodes, &options.beepOnInvalid, &options.invalidAction,
                &options.replaceString, &options.prependString, &code, &description))
            return;
        ApplySwitches(options);
        ms_pAppInterface->SetDefaultFieldWidths(code, description);
        ApplyAction(options, InvalidCodeActionOfDialog(options.validate, options.invalidAction));
    });
}

void CLookupOptionsMgr::OnAdminOptions() {
    ms_pAppInterface->EditLookupAdminOptions(this);
}

bool CLookupOptionsMgr::MayChangeLogon() {
    CString stored;
    if (!CLookupRegKey().GetAdminPassword(stored))
        return true;
    const CResourceScope scope;
    CLookupOldPasswordDlg dialog(kMaxPasswordLength);
    if (dialog.DoModal() != IDOK)
        return false;
    ScramblePassword(dialog.m_sPassword);
    if (dialog.m_sPassword == stored)
        return true;
    AfxMessageBox("Incorrect password entered!", 0, 0);
    return false;
}

void CLookupOptionsMgr::DoAdminLoggon() {
    RunInMemoryOrTell([this] {
        if (IsAdminLoggon())
            AfxMessageBox("You are already logged on as Admin.", 0, 0);
        else if (MayChangeLogon())
            CLookupRegKey().SetAdminLoggonState(true);
    });
}

void CLookupOptionsMgr::DoAdminLoggoff() {
    RunInMemoryOrTell([this] {
        if (!IsAdminLoggon())
            AfxMessageBox("You are not currently logged on as Admin.", 0, 0);
        else if (MayChangeLogon())
            CLookupRegKey().SetAdminLoggonState(false);
    });
}

void CLookupOptionsMgr::OnSetAdminPassword() {
    RunInMemoryOrTell([this] {
        if (!IsAdminLoggon() || !MayChangeLogon())
            return;
        const CResourceScope scope;
        CLookupAdminPasswordDlg dialog(kMaxPasswordLength);
        if (dialog.DoModal() != IDOK)
            return;
        const bool scrambled = ScramblePassword(dialog.m_sPassword);
        if (scrambled && dialog.m_sPassword.GetLength() < kMaxPasswordLength)
            // A zero byte ended the form early, and many other passwords have the same.
            AfxMessageBox("This password cannot be used, since its stored form would fit others too.\n"
                          "Please choose another.", 0, 0);
        else if (scrambled && CLookupRegKey().SetAdminPassword(dialog.m_sPassword))
            AfxMessageBox("New password successfully set!", MB_ICONASTERISK, 0);
        else
            AfxMessageBox("Could not set password!", MB_ICONHAND, 0);
    });
}

bool CLookupOptionsMgr::IsAdminLoggon() const {
    return CLookupRegKey().IsAdminLoggon();
}

bool CLookupOptionsMgr::IsInStrictMode() const {
    return CLookupRegKey().IsInStrictMode();
}

bool CLookupOptionsMgr::SetStrictMode(bool on) {
    return CLookupRegKey().SetStrictMode(on);
}

bool CLookupOptionsMgr::IsLockingAllFiles() const {
    return CLookupRegKey().IsLockingAllFiles();
}

bool CLookupOptionsMgr::SetLockAllFiles(bool on) {
    return CLookupRegKey().SetLockAllFiles(on);
}

bool CLookupOptionsMgr::IsFileLocked(const char *path) const {
    return IsLockingAllFiles() || IsSingleFileLocked(path);
}

bool CLookupOptionsMgr::IsSingleFileLocked(const char *path) const {
    return CLookupRegKey().IsLinkFileLocked(path);
}

bool CLookupOptionsMgr::LockFile(const char *path) {
    return CLookupRegKey().LockLinks(path);
}

bool CLookupOptionsMgr::UnLockFile(const char *path) {
    return CLookupRegKey().UnLockLinks(path);
}

void CLookupOptionsMgr::GetDefaultFieldWidths(UINT *code, UINT *description) const {
    ms_pAppInterface->GetDefaultFieldWidths(code, description);
}
