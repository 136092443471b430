// The run's events that come from a host: moves and sizes under an open box, texts from outside, dialogs of commands.
#include "EditorRun.h"

#include "dataeditor/FindReplaceData.h"
#include "resources/ResourceIds.h"
#include "search/PatternText.h"

#include <algorithm>
#include <cstring>

// --- Moves

void EditorRun::GoSomewhere() {
    const int cols = std::max(static_cast<int>(m_view.m_shown.size()), 1);
    const int col = m_random.Below(cols + 1), how = m_random.Below(3);
    const long row = m_random.Below(static_cast<int>(m_model.Rows()) + 1);
    Say("go %d to %d,%ld", how, col, row);
    ScrollMaybe([&] {
        if (how == 0)
            m_editor->GotoCell(col, row);
        else if (how == 1)
            m_editor->GotoRow(row);
        else
            m_editor->GotoCol(col);
    });
}

void EditorRun::ScrollView() {
    const int to = m_random.Below(8);
    Say("scroll to %d", to);
    ScrollMaybe([&] { m_random.OneIn(2) ? m_editor->SetTopRow(to) : m_editor->SetLeftCol(to); });
}

void EditorRun::ClickHeading() {
    const bool corner = m_random.OneIn(4);
    const int cols = static_cast<int>(m_view.m_shown.size());
    if (cols == 0)
        return;
    const int col = m_random.Below(cols);
    Say("click on the %s", corner ? "corner" : "heading");
    ExpectFinish();
    corner ? m_editor->OnCB_LClicked(1) : m_editor->OnTH_LClicked(col, 1);
}

void EditorRun::FocusCells() {
    Say("give the cells the focus");
    ExpectFinish();
    m_editor->SendMessage(kMsgSetGridFocus, 0, 0);
}

void EditorRun::Find() {
    CFindReplaceData data;
    const bool allFields = m_random.OneIn(2);
    const int direction = m_random.Of({kSearchDown, kSearchAll});
    data.SetData("a", "", true, allFields, direction, Search::kAnywhere, false);
    Say("find a");
    if (m_view.m_shown.empty())
        return;
    ExpectFinish();
    m_editor->SendMessage(kMsgFindNext, reinterpret_cast<WPARAM>(&data), 0);
}

// --- Sizes

// As a drag of the user's does it.
void EditorRun::SizeColumn() {
    const int cols = static_cast<int>(m_view.m_shown.size());
    if (cols == 0)
        return;
    const int col = m_random.Below(cols);
    int width = m_random.Of({0, 20, 60, 200});
    Say("column %d gets a width of %d", col, width);
    m_editor->OnCanSizeCol(col);
    m_editor->SetColWidth(col, width);
    m_editor->OnColSized(col, &width);
    m_view.Change(m_view.m_shown);
}

void EditorRun::SizeRows() {
    int height = 8 + m_random.Below(40);
    Say("rows get a height of %d", height);
    m_editor->OnCanSizeRow(0);
    m_editor->SetRowHeight(0, height);
    m_editor->OnRowSized(0, &height);
    m_view.Change(m_view.m_shown);
}

void EditorRun::ChangeFonts() {
    Say("new fonts");
    LOGFONTA font{};
    font.lfHeight = -(8 + m_random.Below(12));
    std::strcpy(font.lfFaceName, "Arial");
    CEditorCore::SetFonts(font, font);
}

void EditorRun::ResetView() {
    const bool full = m_random.OneIn(2);
    Say("reset the view%s", full ? " in full" : "");
    ExpectFinish();
    m_boxUndone = false;
    m_view.ForgetHistory();
    if (full) {
        m_view.m_shown.clear();
        for (int field = 0; field < kFields; ++field)
            m_view.m_shown.push_back(field);
    }
    m_editor->ResetFileView(full);
}

// --- Texts from outside

bool EditorRun::IsBoxOver(int col, long row) const {
    return BoxIsOpen() && m_editor->m_GI.m_editCol == col && m_editor->m_GI.m_editRow == row;
}

void EditorRun::EnterText() {
    const int cols = static_cast<int>(m_view.m_shown.size());
    if (cols == 0)
        return;
    const int col = m_random.OneIn(2) ? m_editor->GetCurrentCol() : m_random.Below(cols);
    const long any = m_random.Below(static_cast<int>(m_model.Rows()) + 1);
    const long row = m_random.OneIn(2) ? m_editor->GetCurrentRow() : any;
    const std::string text = RandomText(3);
    Say("enter %s into %d,%ld", text.c_str(), col, row);
    if (IsBoxOver(col, row))
        ExpectSettled();
    Put(row, m_view.m_shown[static_cast<size_t>(col)], text);
    m_boxUndone = false;
    m_editor->EnterEditText(text.c_str(), col, row, m_random.OneIn(2));
}

// Something else may happen before the grid goes on.
void EditorRun::PickText() {
    const std::string text = RandomText(3);
    const int col = m_editor->GetCurrentCol();
    const long row = m_editor->GetCurrentRow();
    Say("pick %s", text.c_str());
    if (IsReadOnly() || m_view.m_shown.empty())
        return;
    if (IsBoxOver(col, row))
        ExpectSettled();
    Put(row, m_view.m_shown[static_cast<size_t>(col)], text);
    m_boxUndone = false;
    m_editor->EnterPickListText(text.c_str());
    if (m_random.OneIn(2))
        GoSomewhere();
    else if (!BoxIsOpen())
        m_editor->StartEdit();
    m_editor->SendMessage(WM_TIMER, m_editor->Timer(), 0);
}

void EditorRun::CutCells() {
    Say("cut by the host");
    int left, right;
    long top, bottom;
    if (IsReadOnly())
        return;
    ExpectSettled();
    bool any = SelectedBlock(&left, &top, &right, &bottom);
    if (!any && m_editor->GetCurrentSelection(&left, &top, &right, &bottom) != GRID_SUCCESS) {
        left = right = m_editor->GetCurrentCol(); // with nothing selected the current cell goes
        top = bottom = m_editor->GetCurrentRow();
        any = left < static_cast<int>(m_view.m_shown.size());
    }
    if (any) {
        for (long row = top; row <= bottom; ++row) {
            for (int col = left; col <= right; ++col)
                Put(row, m_view.m_shown[static_cast<size_t>(col)], "");
        }
    }
    m_editor->CutSelected();
}

// --- Dialogs

void EditorRun::InsertByDialog() {
    if (m_model.Rows() > 12)
        return;
    const int count = m_random.Below(3);
    Say("insert %d by the dialog", count);
    if (!IsReadOnly()) {
        ExpectSettled();
        if (count > 0 && !m_source->m_refusesRows)
            m_model.Insert(std::min(m_editor->GetCurrentRow(), m_model.Rows()), count);
    }
    WithDialog act([count](HWND dialog) {
        ::SetDlgItemInt(dialog, IDC_RECORDS_COUNT, static_cast<UINT>(count), FALSE);
        ::SendMessageA(dialog, WM_COMMAND, count > 0 ? IDOK : IDCANCEL, 0);
    });
    m_editor->OnInsertRows();
}

void EditorRun::GoToRecord() {
    const int record = 1 + m_random.Below(static_cast<int>(m_model.Rows()) + 1);
    Say("go to record %d by the dialog", record);
    ExpectSettled();
    WithDialog act([record](HWND dialog) {
        ::SetDlgItemInt(dialog, IDC_RECORDS_COUNT, static_cast<UINT>(record), FALSE);
        ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
    });
    m_editor->OnGotoRecord();
}

// Turn by turn to two files, the second time asking about the one that is there.
void EditorRun::SaveUnderAnotherName() {
    CString name(m_editor->GetFilePath());
    const bool first = name.Find("other") < 0;
    name = name.Left(name.ReverseFind('\\') + 1) + (first ? "other.dbf" : "third.dbf");
    Say("save as %s", name.GetString());
    m_service->m_onSaveAs = [&](CString &path, bool *filtered, bool) {
        path = name;
        *filtered = false;
        return true;
    };
    ExpectSettled(); // before the prompt
    if (!CEditorCore::FileExists(name) || NextAnswer() == IDYES)
        m_model.ForgetHistory();
    static_cast<COrvaneEditor *>(m_editor)->OnSaveAs();
    m_service->m_onSaveAs = nullptr;
}
