// The run's closes, ends of the session and messages of strangers, by themselves and while a question is up.
#include "EditorRun.h"

#include "grid/ValueScope.h"

#include <iterator>

Records EditorRun::RecordsOf(CDbfDataSource &source) const {
    Records records;
    CUGCell cell;
    for (long row = 0; row < source.GetNumRows(); ++row) {
        records.emplace_back();
        for (int field = 0; field < kFields; ++field) {
            cell.ClearAll();
            source.GetCell(field, row, &cell);
            records.back().push_back(cell.GetText());
        }
    }
    return records;
}

// What is in the file is what was saved last; the view is the one that the layout beside it has kept.
void EditorRun::OpenAnew() {
    const int ownWidth = m_ownWidth;
    const RunTable table = m_open(m_path, [this](CDbfDataSource &source) { return MayClose(source); });
    m_editor = table.editor;
    m_source = table.source;
    m_source->m_onSaved = [this](const char *name) {
        m_saved = RecordsOf(*m_source);
        if (name != nullptr)
            m_path = name;
    };
    m_model.m_records = m_saved;
    m_model.ForgetHistory();
    m_view.ForgetHistory();
    m_view.m_shown.clear();
    CUIntArray shown;
    m_editor->GetDisplayCols(shown);
    for (int col = 0; col < shown.GetSize(); ++col)
        m_view.m_shown.push_back(static_cast<int>(shown.GetAt(col)));
    m_frozen = m_editor->m_GI.m_lockedCols;
    m_ownWidth = m_editor->GetSH_Width();
    for (int col = 0; col < m_frozen; ++col) {
        int width = 0;
        m_editor->GetColWidth(col, &width);
        m_ownWidth -= width;
    }
    EXPECT_TRUE(ownWidth == 0 || m_ownWidth == ownWidth)
        << "after " << m_text << " the side heading's own part is " << m_ownWidth << ", not " << ownWidth;
    m_gone = false;
    m_edit = m_editor->m_edits;
    m_boxText.clear();
    m_boxUndone = false;
    m_expected = m_answered = 0;
    m_editor->SetFocus();
}

// As hosts ask.
bool EditorRun::MayClose(CDbfDataSource &source) {
    const int answer = AfxMessageBox("Save the changes?", MB_YESNOCANCEL);
    if (answer == IDYES)
        source.Save();
    return answer == IDNO || (answer == IDYES && !source.CanUndo());
}

void EditorRun::Close() {
    Say("close");
    if (!m_random.OneIn(4)) {
        ExpectFinish();
        const int answer = m_model.CanUndo() ? NextAnswer() : IDNO;
        const bool closed = m_editor->CloseDataSource(false);
        EXPECT_TRUE(m_gone || closed == (answer != IDCANCEL)) << m_text;
        EXPECT_TRUE(m_gone || !closed || answer != IDYES || m_model.m_records == m_saved) << m_text;
        m_gone = m_gone || closed;
        return;
    }
    Say("the window goes");
    m_gone = true;
    m_editor->DestroyWindow();
}

// What anybody can send, with any values. Nothing comes of it.
void EditorRun::HearStranger() {
    const UINT messages[] = {kMsgFindNext, kMsgReplaceNext, kMsgRefreshRow, kMsgRejectLookupCode, kMsgPostRejectLookupCode,
                             kMsgTitleChanged, kMsgCommandsChanged, WM_QUERYENDSESSION, WM_ENDSESSION, WM_TIMER};
    const UINT message = messages[m_random.Below(static_cast<int>(std::size(messages)))];
    const WPARAM wParam = m_random.OneIn(3) ? 0 : (static_cast<WPARAM>(m_random.Below(0x7FFFFFFF)) << m_random.Below(32));
    const LPARAM lParam = m_random.OneIn(3) ? 0 : static_cast<LPARAM>(m_random.Below(0x7FFFFFFF)) - m_random.Below(0x7FFFFFFF);
    if (!m_gone)
        Say("a stranger's message %u(%llx,%llx)", message, static_cast<unsigned long long>(wParam),
            static_cast<unsigned long long>(lParam));
    const bool ofGrid = message == WM_TIMER && wParam == m_editor->Timer();
    if (m_editor->GetSafeHwnd() != nullptr && !ofGrid)
        m_editor->SendMessage(message, wParam, message == WM_TIMER ? 0 : lParam);
}

// What else may come while a box is up. Further questions get No: a close that is asked for goes through.
void EditorRun::DisturbQuestion() {
    const CUGValueScope<bool> disturbing(&m_disturbing, true);
    const std::string text = m_text;
    if (m_random.OneIn(4))
        HearStranger();
    m_text = text;
    if (m_gone || !m_random.OneIn(30))
        return;
    if (m_random.OneIn(2)) {
        m_text += ", the window goes meanwhile";
        m_gone = true;
        m_editor->DestroyWindow();
    } else if (m_editor->CloseDataSource(false)) {
        m_text += ", closed meanwhile";
        m_gone = true;
    }
}
