#include "RecordingHost.h"

#include <cstring>

RecordingOptions::RecordingOptions(CallLog *log) : m_log(log) {
    m_cellFont.lfHeight = -12;
    m_headingFont.lfHeight = -13;
    std::strcpy(m_cellFont.lfFaceName, "Arial");
    std::strcpy(m_headingFont.lfFaceName, "Arial");
}

void RecordingOptions::SetCellFont(const LOGFONTA *font) {
    m_cellFont = *font;
    m_log->Note("SetCellFont(" + std::to_string(font->lfHeight) + ")");
}

void RecordingOptions::SetHeadingFont(const LOGFONTA *font) {
    m_headingFont = *font;
    m_log->Note("SetHeadingFont(" + std::to_string(font->lfHeight) + ")");
}

int RecordingOptions::GetUndoLevels() {
    if (m_outOfMemory)
        AfxThrowMemoryException();
    return m_undoLevels;
}

void RecordingOptions::SetEnterKeyTab(bool enterIsTab) {
    m_enterIsTab = enterIsTab;
    if (m_onSetEnterKey)
        m_onSetEnterKey();
    m_log->Note(enterIsTab ? "SetEnterKeyTab(1)" : "SetEnterKeyTab(0)");
}

void RecordingHost::SetEditorTitle(const char *path, const char *table, CEditorCore *editor) {
    m_log->Note(std::string("Title(") + path + "," + (table != nullptr ? table : "null") + ")");
    if (m_onTitle)
        m_onTitle(editor);
}

CUGDataSource *RecordingHost::CreateDataSource(const char *path) {
    m_log->Note(std::string("Create(") + path + ")");
    if (m_sources.empty())
        return nullptr;
    CUGDataSource *source = m_sources.front();
    m_sources.pop_front();
    return source;
}

void RecordingHost::GetDefaultFieldWidths(UINT *code, UINT *description) {
    m_log->Note("GetWidths(" + std::to_string(*code) + "," + std::to_string(*description) + ")");
    if (m_widths[0] != 0)
        *code = m_widths[0];
    if (m_widths[1] != 0)
        *description = m_widths[1];
}

void RecordingHost::SetDefaultFieldWidths(UINT code, UINT description) {
    m_log->Note("SetWidths(" + std::to_string(code) + "," + std::to_string(description) + ")");
}

void RecordingHost::CopyLookup(bool *validate, bool *validateOnKey, bool *resolveSubMenus, bool *allowPartialCodes,
                               bool *beepOnInvalid, int *invalidAction, CString *replaceString,
                               CString *prependString) const {
    *validate = m_lookup.m_validate;
    *validateOnKey = m_lookup.m_validateOnKey;
    *resolveSubMenus = m_lookup.m_resolveSubMenus;
    *allowPartialCodes = m_lookup.m_allowPartialCodes;
    *beepOnInvalid = m_lookup.m_beepOnInvalid;
    *invalidAction = m_lookup.m_invalidAction;
    *replaceString = m_lookup.m_replaceString;
    *prependString = m_lookup.m_prependString;
}

void RecordingHost::GetLookupOptions(bool *validate, bool *validateOnKey, bool *resolveSubMenus,
                                     bool *allowPartialCodes, bool *beepOnInvalid, int *invalidAction,
                                     CString *replaceString, CString *prependString) {
    m_log->Note("GetLookupOptions");
    CopyLookup(validate, validateOnKey, resolveSubMenus, allowPartialCodes, beepOnInvalid, invalidAction,
               replaceString, prependString);
}

bool RecordingHost::EditLookupUserOptions(bool *validate, bool *validateOnKey, bool *resolveSubMenus,
                                          bool *allowPartialCodes, bool *beepOnInvalid, int *invalidAction,
                                          CString *replaceString, CString *prependString, UINT *codeWidth,
                                          UINT *descriptionWidth) {
    m_log->Note("UserOptions");
    CopyLookup(validate, validateOnKey, resolveSubMenus, allowPartialCodes, beepOnInvalid, invalidAction,
               replaceString, prependString);
    *codeWidth = m_lookup.m_codeWidth;
    *descriptionWidth = m_lookup.m_descriptionWidth;
    return m_lookupAnswer;
}
