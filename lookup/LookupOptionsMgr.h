// CLookupOptionsMgr: the lookup options as a host uses them. Objects have no state: options are the cell
// type's settings, the administrator's logon, locks and strict mode stand in the registry (CLookupRegKey).
// What logon, locks and strict mode allow or forbid is the host's to say; nothing in the library asks for
// them.
#pragma once

#include <afx.h>

class CVAppInterface;

class ORVANE_API CLookupOptionsMgr {
public:
    // Takes the options that the host keeps; CEditorCore::Initialise calls it. The host is borrowed.
    static void InitialSetAllOptions(CVAppInterface *host);

    // All that follows wants InitialSetAllOptions first.
    //
    // The host's dialogs. What the user chooses among the user options holds at once for all lookup fields.
    void OnUserOptions();
    void OnAdminOptions();
    // Asks for the old password where there is one, then for a new one. Does nothing while nobody is logged
    // on.
    void OnSetAdminPassword();
    // Both ask for the password where there is one. The logon is kept in the registry and outlasts the
    // program.
    void DoAdminLoggon();
    void DoAdminLoggoff();

    bool IsAdminLoggon() const;
    bool IsInStrictMode() const;
    bool SetStrictMode(bool on);
    bool IsLockingAllFiles() const;
    bool SetLockAllFiles(bool on);
    // Link files, by full path. IsFileLocked is true for every path while all files are locked.
    bool IsFileLocked(const char *path) const;
    bool IsSingleFileLocked(const char *path) const;
    bool LockFile(const char *path);
    bool UnLockFile(const char *path);
    // The host's answer, in characters.
    void GetDefaultFieldWidths(UINT *code, UINT *description) const;

private:
    // Asks where a password is stored: false for a wrong one, which the user is told, and when it is
    // cancelled.
    static bool MayChangeLogon();

    static CVAppInterface *ms_pAppInterface;
};
