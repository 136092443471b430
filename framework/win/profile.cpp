// The application's settings in the registry or an .INI file, and the recent files in them.
#include "afxwin.h"

#include <vector>

void CWinApp::SetRegistryKey(LPCTSTR key) {
    Replace(m_pszRegistryKey, key);
    // In the registry the program's name stands without the extension that an .INI file needs.
    Replace(m_pszProfileName, m_pszAppName ? m_pszAppName : m_pszExeName);
}

void CWinApp::SetRegistryKey(UINT id) {
    CString key;
    key.LoadString(id);
    SetRegistryKey(key);
}

HKEY CWinApp::GetAppRegistryKey() {
    if (!m_pszRegistryKey || !m_pszProfileName)
        return nullptr;
    HKEY key = nullptr;
    const CString path = CString("Software\\") + m_pszRegistryKey + "\\" + m_pszProfileName;
    ::RegCreateKeyEx(HKEY_CURRENT_USER, path, 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &key, nullptr);
    return key;
}

HKEY CWinApp::GetSectionKey(LPCTSTR section) {
    const HKEY app = GetAppRegistryKey();
    if (!app)
        return nullptr;
    HKEY key = nullptr;
    ::RegCreateKeyEx(app, section, 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &key, nullptr);
    ::RegCloseKey(app);
    return key;
}

namespace {

// The bytes of a value of the type; false when there is none or it is of another type.
bool ReadValue(HKEY key, LPCTSTR entry, DWORD wanted, std::vector<BYTE> &bytes) {
    DWORD type = 0, count = 0;
    if (!key || ::RegQueryValueEx(key, entry, nullptr, &type, nullptr, &count) != ERROR_SUCCESS ||
        type != wanted)
        return false;
    bytes.resize(count);
    return ::RegQueryValueEx(key, entry, nullptr, &type, bytes.data(), &count) == ERROR_SUCCESS;
}

bool ReadAndClose(HKEY key, LPCTSTR entry, DWORD wanted, std::vector<BYTE> &bytes) {
    const bool found = ReadValue(key, entry, wanted, bytes);
    if (key)
        ::RegCloseKey(key);
    return found;
}

BOOL WriteAndClose(HKEY key, LPCTSTR entry, DWORD type, const void *bytes, DWORD count) {
    if (!key)
        return FALSE;
    const LONG error = ::RegSetValueEx(key, entry, 0, type, static_cast<const BYTE *>(bytes), count);
    ::RegCloseKey(key);
    return error == ERROR_SUCCESS;
}

} // namespace

UINT CWinApp::GetProfileInt(LPCTSTR section, LPCTSTR entry, int defaultValue) {
    if (!m_pszRegistryKey)
        return ::GetPrivateProfileInt(section, entry, defaultValue, m_pszProfileName);
    std::vector<BYTE> bytes;
    DWORD value = static_cast<DWORD>(defaultValue);
    if (ReadAndClose(GetSectionKey(section), entry, REG_DWORD, bytes) && bytes.size() == sizeof value)
        std::memcpy(&value, bytes.data(), sizeof value);
    return value;
}

CString CWinApp::GetProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR defaultValue) {
    if (m_pszRegistryKey) {
        std::vector<BYTE> bytes;
        if (!ReadAndClose(GetSectionKey(section), entry, REG_SZ, bytes))
            return defaultValue;
        bytes.push_back(0);
        return CString(reinterpret_cast<const char *>(bytes.data()));
    }
    std::vector<char> buffer(4096);
    ::GetPrivateProfileString(section, entry, defaultValue ? defaultValue : "", buffer.data(),
                              static_cast<DWORD>(buffer.size()), m_pszProfileName);
    return CString(buffer.data());
}

BOOL CWinApp::GetProfileBinary(LPCTSTR section, LPCTSTR entry, BYTE **data, UINT *count) {
    *data = nullptr;
    *count = 0;
    std::vector<BYTE> bytes;
    if (m_pszRegistryKey) {
        if (!ReadAndClose(GetSectionKey(section), entry, REG_BINARY, bytes))
            return FALSE;
    } else {
        // Two letters of A to P stand for a byte, the low half first.
        const CString text = GetProfileString(section, entry);
        if (text.IsEmpty())
            return FALSE;
        for (int i = 0; i + 1 < text.GetLength(); i += 2)
            bytes.push_back(static_cast<BYTE>(((text[i + 1] - 'A') << 4) + (text[i] - 'A')));
    }
    *data = new BYTE[bytes.size() + 1];
    *count = static_cast<UINT>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), *data);
    return TRUE;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR section, LPCTSTR entry, int value) {
    if (m_pszRegistryKey)
        return WriteAndClose(GetSectionKey(section), entry, REG_DWORD, &value, sizeof value);
    CString text;
    text.Format("%d", value);
    return ::WritePrivateProfileString(section, entry, text, m_pszProfileName);
}

BOOL CWinApp::WriteProfileString(LPCTSTR section, LPCTSTR entry, LPCTSTR value) {
    if (!m_pszRegistryKey)
        return ::WritePrivateProfileString(section, entry, value, m_pszProfileName);
    if (!entry) {
        const HKEY app = GetAppRegistryKey();
        const LONG error = app ? ::RegDeleteKey(app, section) : ERROR_FILE_NOT_FOUND;
        if (app)
            ::RegCloseKey(app);
        return error == ERROR_SUCCESS;
    }
    if (value)
        return WriteAndClose(GetSectionKey(section), entry, REG_SZ, value,
                             static_cast<DWORD>(std::strlen(value) + 1));
    const HKEY key = GetSectionKey(section);
    const LONG error = key ? ::RegDeleteValue(key, entry) : ERROR_FILE_NOT_FOUND;
    if (key)
        ::RegCloseKey(key);
    return error == ERROR_SUCCESS || error == ERROR_FILE_NOT_FOUND;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR section, LPCTSTR entry, BYTE *data, UINT count) {
    if (m_pszRegistryKey)
        return WriteAndClose(GetSectionKey(section), entry, REG_BINARY, data, count);
    CString text;
    for (UINT i = 0; i < count; i++) {
        text += static_cast<char>('A' + (data[i] & 0xF));
        text += static_cast<char>('A' + (data[i] >> 4));
    }
    return WriteProfileString(section, entry, text);
}

void CWinApp::LoadStdProfileSettings(UINT maxRecentFiles) {
    if (maxRecentFiles == 0)
        return;
    delete m_pRecentFileList;
    m_pRecentFileList = nullptr;
    m_pRecentFileList =
        new CRecentFileList(0, "Recent File List", "File%d", static_cast<int>(maxRecentFiles));
    m_pRecentFileList->ReadList();
}

void CWinApp::SaveStdProfileSettings() {
    if (m_pRecentFileList)
        m_pRecentFileList->WriteList();
}

void CWinApp::AddToRecentFileList(LPCTSTR path) {
    if (m_pRecentFileList)
        m_pRecentFileList->Add(path);
}

void CWinApp::OnUpdateRecentFileMenu(CCmdUI *cmdUI) {
    if (m_pRecentFileList)
        m_pRecentFileList->UpdateMenu(cmdUI);
    else
        cmdUI->Enable(FALSE);
}

BOOL CWinApp::OnOpenRecentFile(UINT id) {
    const int index = static_cast<int>(id - ID_FILE_MRU_FILE1);
    if (!m_pRecentFileList || index >= m_pRecentFileList->GetSize() || (*m_pRecentFileList)[index].IsEmpty())
        return FALSE;
    const CString path = (*m_pRecentFileList)[index];
    if (!OpenRecentFile(path))
        m_pRecentFileList->Remove(index);
    return TRUE;
}

CRecentFileList::CRecentFileList(UINT start, LPCTSTR section, LPCTSTR entryFormat, int size,
                                 int maxDisplayLength)
    : m_start(start), m_section(section), m_entryFormat(entryFormat), m_maxDisplayLength(maxDisplayLength) {
    m_names.SetSize(size);
}

void CRecentFileList::Add(LPCTSTR path) {
    char full[MAX_PATH];
    const DWORD length = ::GetFullPathName(path, sizeof full, full, nullptr);
    const CString name = length > 0 && length < sizeof full ? full : path;
    int at = 0;
    while (at < GetSize() - 1 && m_names[at].CompareNoCase(name) != 0)
        at++;
    for (; at > 0; at--)
        m_names[at] = m_names[at - 1];
    m_names[0] = name;
}

void CRecentFileList::Remove(int index) {
    for (int i = index; i < GetSize() - 1; i++)
        m_names[i] = m_names[i + 1];
    m_names[GetSize() - 1].Empty();
}

void CRecentFileList::ReadList() {
    for (int i = 0; i < GetSize(); i++) {
        CString entry;
        entry.Format(m_entryFormat, i + 1);
        m_names[i] = AfxGetApp()->GetProfileString(m_section, entry);
    }
}

void CRecentFileList::WriteList() {
    AfxGetApp()->WriteProfileString(m_section, nullptr, nullptr);
    for (int i = 0; i < GetSize(); i++) {
        CString entry;
        entry.Format(m_entryFormat, i + 1);
        if (!m_names[i].IsEmpty())
            AfxGetApp()->WriteProfileString(m_section, entry, m_names[i]);
    }
}

void CRecentFileList::UpdateMenu(CCmdUI *cmdUI) {
    CMenu *menu = cmdUI->m_pMenu;
    if (m_originalText.IsEmpty() && menu)
        menu->GetMenuString(cmdUI->m_nID, m_originalText, MF_BYCOMMAND);
    if (m_names[0].IsEmpty()) {
        if (!m_originalText.IsEmpty())
            cmdUI->SetText(m_originalText);
        cmdUI->Enable(FALSE);
        return;
    }
    if (!menu)
        return;
    for (int i = 0; i < GetSize(); i++)
        menu->DeleteMenu(cmdUI->m_nID + static_cast<UINT>(i), MF_BYCOMMAND);
    for (int i = 0; i < GetSize() && !m_names[i].IsEmpty(); i++) {
        CString name = m_names[i];
        // A long path keeps its drive and its end, which tell most.
        if (name.GetLength() > m_maxDisplayLength)
            name = name.Left(3) + "..." + name.Right(m_maxDisplayLength - 6);
        name.Replace("&", "&&");
        CString item;
        item.Format("&%d %s", (i + 1 + static_cast<int>(m_start)) % 10, name);
        menu->InsertMenu(cmdUI->m_nIndex++, MF_STRING | MF_BYPOSITION, cmdUI->m_nID + static_cast<UINT>(i),
                         item);
    }
    // Back to the last item made: the caller goes on behind it.
    cmdUI->m_nIndex--;
    cmdUI->m_nIndexMax = menu->GetMenuItemCount();
    cmdUI->m_bEnableChanged = TRUE;
}
