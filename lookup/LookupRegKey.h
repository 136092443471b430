// CLookupRegKey: what the registry holds of the lookup options, under a root that the host gives. An object
// has no state: every call opens its key, making it where it is not, and closes it, so that nothing is ever
// out of date. A registry that refuses shows in the results alone.
//
//   root\Admin         Options (bits), Passwrd
//   root\User          Options (bits), Invalid Action, Replace String, Preppend String, Working Folder,
//                      Lookup Props, DefCodeFldWidth, DefDescFldWidth, DefCodeWith, DefDescWith
//   root\Lookup Links<folder>   one byte for each link file in the folder: is it locked
#pragma once

#include <afx.h>

class ORVANE_API CLookupRegKey {
public:
    // Both hold for all objects. The path is copied, the key stays the host's. Before this is called no key
    // can be opened.
    static void SetRootRegKey(HKEY root, const char *path);

    // Options: each setter is true when the value was written, each query false when it is not there.
    bool SetAdminLoggonState(bool on) { return SetOption(kAdmin, 0x02, on); }
    bool IsAdminLoggon() const { return GetOption(kAdmin, 0x02); }
    bool SetStrictMode(bool on) { return SetOption(kAdmin, 0x04, on); }
    bool IsInStrictMode() const { return GetOption(kAdmin, 0x04); }
    bool SetCaseSensitive(bool on) { return SetOption(kAdmin, 0x08, on); }
    bool IsCaseSensitive() const { return GetOption(kAdmin, 0x08); }
    bool SetLockAllFiles(bool on) { return SetOption(kAdmin, 0x10, on); }
    bool IsLockingAllFiles() const { return GetOption(kAdmin, 0x10); }
    bool SetAllowPartialCodes(bool on) { return SetOption(kAdmin, 0x20, on); }
    bool IsAllowingPartialCodes() const { return GetOption(kAdmin, 0x20); }
    bool SetValidateLookupFields(bool on) { return SetOption(kAdmin, 0x40, on); }
    bool IsValidatingLookupFields() const { return GetOption(kAdmin, 0x40); }
    bool SetValidateOnKey(bool on) { return SetOption(kUser, 0x02, on); }
    bool IsValidateOnKey() const { return GetOption(kUser, 0x02); }
    bool SetResolveSubMenus(bool on) { return SetOption(kUser, 0x04, on); }
    bool IsResolvingSubMenus() const { return GetOption(kUser, 0x04); }
    bool SetBeepOnInvalidCode(bool on) { return SetOption(kUser, 0x20, on); }
    bool IsBeepingOnInvalidCode() const { return GetOption(kUser, 0x20); }

    // The administrator's password as ScramblePassword left it. False where there is none.
    bool SetAdminPassword(const char *scrambled);
    bool GetAdminPassword(CString &scrambled) const;

    // One of the actions of lookup/InvalidCodeAction.h; -1 when the key cannot be opened, 0 when nothing is
    // stored.
    bool SetInvalidCodeAction(int action);
    int GetInvalidCodeAction() const;

    // The readers leave an argument for which nothing is stored as it was, and are false then.
    bool SetReplaceString(const char *text);
    bool GetReplaceString(CString &text) const;
    bool SetPreppendString(const char *text);
    bool GetPreppendString(CString &text) const;
    // True only for a folder that exists.
    bool SetLookupWorkingFolder(const char *folder);
    bool GetLookupWorkingFolder(CString &folder) const;
    // The properties that a new lookup table is proposed with.
    bool SetLookupTableProperties(bool caseSensitive, bool acceptEmptyCells, bool enableValidation,
                                  bool sortMenuItems);
    bool GetLookupTableProperties(bool *caseSensitive, bool *acceptEmptyCells, bool *enableValidation,
                                  bool *sortMenuItems) const;

    // Widths in characters. Nothing or 0 reads as 5 for codes and 15 for descriptions.
    bool SetDefaultFieldWidths(int code, int description);
    void GetDefaultFieldWidths(UINT *code, UINT *description) const;
    // The fields of a new lookup file, in characters. The getters tell only whether a width is stored: -1
    // when one is, 0 when none is.
    bool SetDefaultNewCodeFieldWidth(int width);
    int GetDefaultNewCodeFieldWidth() const;
    bool SetDefaultNewDescFieldWidth(int width);
    int GetDefaultNewDescFieldWidth() const;

    // Locks of link files, by full path. False also for a path that names no file in a folder.
    bool AddLinkFile(const char *path, bool locked);
    bool RemoveLinkFile(const char *path);
    bool IsLinkFileInRegistry(const char *path) const;
    bool IsLinkFileLocked(const char *path) const;
    bool LockLinks(const char *path) { return AddLinkFile(path, true); }
    bool UnLockLinks(const char *path) { return AddLinkFile(path, false); }

protected:
    static constexpr const char *kAdmin = "\\Admin"; // below the root path
    static constexpr const char *kUser = "\\User";

    bool SetOption(const char *key, DWORD mask, bool value);
    bool GetOption(const char *key, DWORD mask) const;
    bool SetDefWidth(const char *name, UINT width);
    bool GetDefWidth(const char *name, UINT *width) const;
    // The key of a link file's folder; false, and nothing written, for an empty path.
    bool GetKeyPath(const char *path, CString &keyPath) const;
    // The part of `path` behind the last backslash; null when that is empty or there is no backslash.
    static const char *GetFileName(const char *path);

private:
    static CString PathOf(const char *key) { return ms_sRootPath + key; }

    static HKEY ms_hKeyRoot;
    static CString ms_sRootPath;
};
