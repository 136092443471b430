#include "lookup/LookupRegKey.h"

#include "lookup/RegistryKey.h"

#include <cstring>

HKEY CLookupRegKey::ms_hKeyRoot = nullptr;
CString CLookupRegKey::ms_sRootPath;

namespace {

constexpr DWORD kNewOptions = 1; // bit 0 means nothing
constexpr DWORD kPasswordCapacity = 260;
constexpr UINT kCodeFieldWidth = 5;
constexpr UINT kDescriptionFieldWidth = 15;

// Properties of lookup tables.
constexpr DWORD kCaseSensitive = 1, kAcceptEmptyCells = 2, kEnableValidation = 4, kSortMenuItems = 8;

} // namespace

void CLookupRegKey::SetRootRegKey(HKEY root, const char *path) {
    ms_hKeyRoot = root;
    ms_sRootPath = path;
}

bool CLookupRegKey::SetOption(const char *key, DWORD mask, bool value) {
    CRegistryKey registry(ms_hKeyRoot, PathOf(key));
    DWORD options = kNewOptions;
    registry.ReadNumber("Options", &options);
    return registry.WriteNumber("Options", value ? options | mask : options & ~mask);
}

bool CLookupRegKey::GetOption(const char *key, DWORD mask) const {
    DWORD options = 0;
    CRegistryKey(ms_hKeyRoot, PathOf(key)).ReadNumber("Options", &options);
    return (options & mask) != 0;
}

bool CLookupRegKey::SetAdminPassword(const char *scrambled) {
    return CRegistryKey(ms_hKeyRoot, PathOf(kAdmin)).WriteText("Passwrd", scrambled);
}

bool CLookupRegKey::GetAdminPassword(CString &scrambled) const {
    return CRegistryKey(ms_hKeyRoot, PathOf(kAdmin)).ReadText("Passwrd", scrambled, kPasswordCapacity);
}

bool CLookupRegKey::SetInvalidCodeAction(int action) {
    return CRegistryKey(ms_hKeyRoot, PathOf(kUser)).WriteNumber("Invalid Action", static_cast<DWORD>(action));
}

int CLookupRegKey::GetInvalidCodeAction() const {
    const CRegistryKey registry(ms_hKeyRoot, PathOf(kUser));
    if (!registry.IsOpen())
        return -1;
    DWORD action = 0;
    registry.ReadNumber("Invalid Action", &action);
    return static_cast<int>(action);
}

bool CLookupRegKey::SetReplaceString(const char *text) {
    return CRegistryKey(ms_hKeyRoot, PathOf(kUser)).WriteText("Replace String", text);
}

bool CLookupRegKey::GetReplaceString(CString &text) const {
    return CRegistryKey(ms_hKeyRoot, PathOf(kUser)).ReadText("Replace String", text);
}

bool CLookupRegKey::SetPreppendString(const char *text) {
    return CRegistryKey(ms_hKeyRoot, PathOf(kUser)).WriteText("Preppend String", text);
}

bool CLookupRegKey::GetPreppendString(CString &text) const {
    return CRegistryKey(ms_hKeyRoot, PathOf(kUser)).ReadText("Preppend String", text);
}

bool CLookupRegKey::SetLookupWorkingFolder(const char *folder) {
    return CRegistryKey(ms_hKeyRoot, PathOf(kUser)).WriteText("Working Folder", folder);
}

bool CLookupRegKey::GetLookupWorkingFolder(CString &folder) const {
    CString stored;
    CFileStatus status;
    if (!CRegistryKey(ms_hKeyRoot, PathOf(kUser)).ReadText("Working Folder", stored) || stored.IsEmpty() ||
        !CFile::GetStatus(stored, status) || (status.m_attribute & CFile::directory) == 0)
        return false;
    folder = stored;
    return true;
}

bool CLookupRegKey::SetLookupTableProperties(bool caseSensitive, bool acceptEmptyCells, bool enableValidation,
                                             bool sortMenuItems) {
    const DWORD properties =
        (caseSensitive ? kCaseSensitive : 0) | (acceptEmptyCells ? kAcceptEmptyCells : 0) |
        (enableValidation ? kEnableValidation : 0) | (sortMenuItems ? kSortMenuItems : 0);
    return CRegistryKey(ms_hKeyRoot, PathOf(kUser)).WriteNumber("Lookup Props", properties);
}

// The bits lie in the low byte; what stands above it is nobody's.
bool CLookupRegKey::GetLookupTableProperties(bool *caseSensitive, bool *acceptEmptyCells,
                                             bool *enableValidation, bool *sortMenuItems) const {
    DWORD properties = 0;
    if (!CRegistryKey(ms_hKeyRoot, PathOf(kUser)).ReadNumber("Lookup Props", &properties))
        return false;
    *caseSensitive = (properties & kCaseSensitive) != 0;
    *acceptEmptyCells = (properties & kAcceptEmptyCells) != 0;
    *enableValidation = (properties & kEnableValidation) != 0;
    *sortMenuItems = (properties & kSortMenuItems) != 0;
    return true;
}

bool CLookupRegKey::SetDefWidth(const char *name, UINT width) {
    return CRegistryKey(ms_hKeyRoot, PathOf(kUser)).WriteNumber(name, width);
}

bool CLookupRegKey::GetDefWidth(const char *name, UINT *width) const {
    DWORD number = 0;
    if (!CRegistryKey(ms_hKeyRoot, PathOf(kUser)).ReadNumber(name, &number))
        return false;
    *width = number;
    return true;
}

bool CLookupRegKey::SetDefaultFieldWidths(int code, int description) {
    return SetDefWidth("DefCodeFldWidth", static_cast<UINT>(code)) &&
           SetDefWidth("DefDescFldWidth", static_cast<UINT>(description));
}

void CLookupRegKey::GetDefaultFieldWidths(UINT *code, UINT *description) const {
    if (!GetDefWidth("DefCodeFldWidth", code) || *code == 0)
        *code = kCodeFieldWidth;
    if (!GetDefWidth("DefDescFldWidth", description) || *description == 0)
        *description = kDescriptionFieldWidth;
}

bool CLookupRegKey::SetDefaultNewCodeFieldWidth(int width) {
    return SetDefWidth("DefCodeWith", static_cast<UINT>(width));
}

// The wrong way round for a width that is there, and known to hosts like this.
int CLookupRegKey::GetDefaultNewCodeFieldWidth() const {
    UINT width = 0;
    return GetDefWidth("DefCodeWith", &width) ? -1 : 0;
}

bool CLookupRegKey::SetDefaultNewDescFieldWidth(int width) {
    return SetDefWidth("DefDescWith", static_cast<UINT>(width));
}

int CLookupRegKey::GetDefaultNewDescFieldWidth() const {
    UINT width = 0;
    return GetDefWidth("DefDescWith", &width) ? -1 : 0;
}

// No separator stands before the folder: locks that were stored so must be found again.
bool CLookupRegKey::GetKeyPath(const char *path, CString &keyPath) const {
    if (path == nullptr || *path == '\0')
        return false;
    const CString whole(path);
    const int slash = whole.ReverseFind('\\');
    keyPath.Format("%s\\%s", ms_sRootPath, "Lookup Links");
    keyPath += slash > 0 ? whole.Left(slash) : whole;
    return true;
}

const char *CLookupRegKey::GetFileName(const char *path) {
    const char *slash = path != nullptr ? std::strrchr(path, '\\') : nullptr;
    return slash != nullptr && slash[1] != '\0' ? slash + 1 : nullptr;
}

bool CLookupRegKey::AddLinkFile(const char *path, bool locked) {
    CString key;
    const char *name = GetFileName(path);
    return name != nullptr && GetKeyPath(path, key) &&
           CRegistryKey(ms_hKeyRoot, key).WriteByte(name, locked ? 1 : 0);
}

bool CLookupRegKey::RemoveLinkFile(const char *path) {
    CString key;
    const char *name = GetFileName(path);
    return name != nullptr && GetKeyPath(path, key) && CRegistryKey(ms_hKeyRoot, key).Delete(name);
}

bool CLookupRegKey::IsLinkFileInRegistry(const char *path) const {
    CString key;
    const char *name = GetFileName(path);
    return name != nullptr && GetKeyPath(path, key) && CRegistryKey(ms_hKeyRoot, key).Has(name);
}

bool CLookupRegKey::IsLinkFileLocked(const char *path) const {
    CString key;
    const char *name = GetFileName(path);
    BYTE state = 0;
    return name != nullptr && GetKeyPath(path, key) &&
           CRegistryKey(ms_hKeyRoot, key).ReadByte(name, &state) && state != 0;
}
