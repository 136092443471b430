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
