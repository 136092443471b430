// The run's events, by what a user or a host does.
#include "EditorRun.h"

#include "dataeditor/DataEditorDlgs.h"
#include "dataeditor/FindReplaceData.h"
#include "resources/ResourceIds.h"
#include "search/PatternText.h"

#include <algorithm>
#include <iterator>

const EditorRun::Event EditorRun::kEvents[] = {
    {30, &EditorRun::TypeCharacter},        {14, &EditorRun::MoveKey},          {14, &EditorRun::EndKey},
    {2, &EditorRun::DeleteKey},             {12, &EditorRun::Undo},             {6, &EditorRun::Redo},
    {3, &EditorRun::HideColumns},           {2, &EditorRun::OrderColumns},      {3, &EditorRun::ShowColumns},
    {1, &EditorRun::Freeze},                {3, &EditorRun::InsertRecords},     {1, &EditorRun::AppendRecord},
    {4, &EditorRun::DeleteRecords},         {1, &EditorRun::DeleteSelectedRecords},
    {1, &EditorRun::DeleteFilteredRecords}, {2, &EditorRun::PasteText},         {2, &EditorRun::PasteClipboard},
    {1, &EditorRun::Cut},                   {3, &EditorRun::Select},            {6, &EditorRun::Click},
    {3, &EditorRun::DoubleClick},           {2, &EditorRun::LeaveWindow},       {2, &EditorRun::ChangeMode},
    {2, &EditorRun::ChangeFilter},          {2, &EditorRun::ChangeRefusals},    {1, &EditorRun::ChangeEnterKey},
    {1, &EditorRun::RowsChangedBelow},      {1, &EditorRun::Replace},           {1, &EditorRun::Save},
    {6, &EditorRun::GoSomewhere},           {2, &EditorRun::ScrollView},        {1, &EditorRun::ClickHeading},
    {1, &EditorRun::FocusCells},            {1, &EditorRun::Find},              {1, &EditorRun::SizeColumn},
    {1, &EditorRun::SizeRows},              {1, &EditorRun::ChangeFonts},       {1, &EditorRun::ResetView},
    {3, &EditorRun::EnterText},             {2, &EditorRun::PickText},          {1, &EditorRun::CutCells},
    {1, &EditorRun::InsertByDialog},        {1, &EditorRun::GoToRecord},        {1, &EditorRun::SaveUnderAnotherName},
    {2, &EditorRun::Close},                 {4, &EditorRun::HearStranger},
    {0, nullptr},
};

// --- Keys

void EditorRun::TypeCharacter() {
    constexpr char kCharacters[] = "abmnz123456789(&";
    const char character = kCharacters[m_random.Below(static_cast<int>(std::size(kCharacters)) - 1)];
    Say("type %c", character);
    SendChar(BoxIsOpen() ? m_editor->Edit() : m_editor->Cells(), static_cast<UINT>(character));
    if (BoxIsOpen() && BoxText() == m_boxText)
        m_boxUndone = m_editor->IsUndone(); // typed over itself, or not taken: the text does not say which
}

void EditorRun::KeyInBox(UINT key) {
    ExpectAppendedBeforeEnter();
    ExpectFinish();
    SendKey(m_editor->Edit(), key);
    AdoptAppended(1);
}

void EditorRun::KeyInGrid(UINT key) {
    const bool empty = m_model.Rows() == 0;
    ::SendMessageA(m_editor->Cells(), WM_KEYDOWN, key, 1);
    if (key == VK_TAB || key == VK_RETURN)
        SendChar(m_editor->Cells(), key == VK_TAB ? '\t' : '\r');
    AdoptAppended(empty ? 2 : 1);
}

void EditorRun::MoveKey() {
    const UINT key = m_random.Of({VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_HOME, VK_END, VK_PRIOR, VK_NEXT});
    Say("move key %u", key);
    if (!BoxIsOpen())
        KeyInGrid(key);
    else if (key == VK_UP || key == VK_DOWN)
        KeyInBox(key);
    else
        SendKey(m_editor->Edit(), key);
}

void EditorRun::EndKey() {
    const UINT key = m_random.Of({VK_TAB, VK_TAB, VK_RETURN, VK_RETURN, VK_ESCAPE});
    const bool shift = key == VK_TAB && m_random.OneIn(4);
    Say("%s key %u", shift ? "Shift and" : "end", key);
    if (shift) {
        HeldKeys held({VK_SHIFT});
        BoxIsOpen() ? KeyInBox(key) : KeyInGrid(key);
    } else {
        BoxIsOpen() ? KeyInBox(key) : KeyInGrid(key);
    }
}

void EditorRun::DeleteKey() {
    Say("Delete key");
    if (BoxIsOpen()) {
        SendKey(m_editor->Edit(), VK_DELETE);
        return;
    }
    int left, right;
    long top, bottom;
    if (!IsReadOnly() && SelectedBlock(&left, &top, &right, &bottom)) {
        m_model.Boundary();
        for (long row = top; row <= bottom; ++row) {
            for (int col = left; col <= right; ++col)
                Put(row, m_view.m_shown[static_cast<size_t>(col)], "");
        }
        m_model.Boundary();
    }
    KeyInGrid(VK_DELETE);
}

// --- Undo

void EditorRun::Undo() {
    Say("undo");
    const bool inBox = BoxIsOpen() && !m_boxUndone && ::SendMessageA(m_editor->Edit(), EM_CANUNDO, 0, 0) != 0;
    if (inBox) {
        m_editor->Undo();
        m_boxText = BoxText();
        m_boxUndone = true;
        return;
    }
    ExpectSettled();
    const long rows = m_model.Rows();
    if (m_view.CanUndo())
        m_view.Undo();
    else if (m_model.CanUndo())
        m_model.Undo();
    if (m_model.Rows() != rows)
        m_view.ForgetHistory();
    m_editor->Undo();
}

void EditorRun::Redo() {
    Say("redo");
    const bool inBox = BoxIsOpen() && m_boxUndone && ::SendMessageA(m_editor->Edit(), EM_CANUNDO, 0, 0) != 0;
    if (inBox) {
        m_editor->Redo();
        m_boxText = BoxText();
        m_boxUndone = false;
        return;
    }
    ExpectSettled();
    const long rows = m_model.Rows();
    if (m_view.CanRedo())
        m_view.Redo();
    else if (m_model.CanRedo())
        m_model.Redo();
    if (m_model.Rows() != rows)
        m_view.ForgetHistory();
    m_editor->Redo();
}

// --- The view

void EditorRun::HideColumns() {
    Say("hide");
    if (m_view.m_shown.empty())
        return;
    int left, right;
    long top, bottom;
    if (m_editor->GetCurrentSelection(&left, &top, &right, &bottom) != GRID_SUCCESS)
        left = right = m_editor->GetCurrentCol();
    ExpectSettled();
    std::vector<int> kept;
    for (int col = 0; col < static_cast<int>(m_view.m_shown.size()); ++col) {
        if (col < left || col > right)
            kept.push_back(m_view.m_shown[static_cast<size_t>(col)]);
    }
    m_view.Change(kept);
    m_editor->OnHideCols();
}

void EditorRun::OrderColumns() {
    std::vector<int> order = m_view.m_shown;
    for (size_t i = order.size(); i > 1; --i)
        std::swap(order[i - 1], order[static_cast<size_t>(m_random.Below(static_cast<int>(i)))]);
    Say("order");
    CStringArray names;
    for (int field : order)
        names.Add(("f" + std::to_string(field)).c_str());
    ExpectSettled();
    m_view.Change(order);
    m_editor->OnOrderCols(&names);
}

void EditorRun::ShowColumns() {
    std::vector<int> order;
    for (int field = 0; field < kFields; ++field) {
        if (!m_random.OneIn(6))
            order.insert(order.begin() + m_random.Below(static_cast<int>(order.size()) + 1), field);
    }
    Say("show %d fields", static_cast<int>(order.size()));
    m_service->m_onVisibility = [&](CStringArray &, CArray<bool, bool> &) {
        CUIntArray fields;
        for (int field : order)
            fields.Add(static_cast<UINT>(field));
        m_editor->ReOrderCols(fields);
    };
    ExpectSettled();
    if (order != m_view.m_shown)
        m_view.Change(order);
    m_editor->OnUnHideCols();
}

void EditorRun::Freeze() {
    const int wanted = m_random.Below(kFields);
    Say("freeze %d", wanted);
    ExpectSettled();
    WithDialog act([wanted](HWND dialog) {
        ::SetDlgItemInt(dialog, IDC_LOCK_COUNT, static_cast<UINT>(wanted), FALSE);
        ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
    });
    m_editor->OnLockColumns();
    m_frozen = std::min(wanted, static_cast<int>(m_view.m_shown.size()));
}

// --- Records

void EditorRun::InsertRecords() {
    if (m_model.Rows() > 12)
        return;
    const long row = m_random.Below(static_cast<int>(m_model.Rows()) + 1);
    const long count = 1 + m_random.Below(2);
    Say("insert %ld before %ld", count, row);
    ExpectSettled();
    const long at = std::min(row, m_model.Rows());
    if (!m_source->m_refusesRows)
        m_model.Insert(at, count);
    m_editor->ExecInsertRows(at, count, m_random.OneIn(2));
}

void EditorRun::AppendRecord() {
    Say("append");
    if (m_model.Rows() > 12)
        return;
    m_boxUndone = m_boxUndone && IsReadOnly(); // an append begins anew, done or not
    if (!IsReadOnly() && !m_source->m_refusesRows)
        m_model.Append(1);
    ScrollMaybe([this] { m_editor->OnAppendRow(0); });
}

void EditorRun::DeleteRecords() {
    if (m_model.Rows() == 0)
        return;
    const long first = m_random.Below(static_cast<int>(m_model.Rows()));
    const long last = std::min(first + m_random.Below(m_model.Rows() > 10 ? 6 : 2), m_model.Rows() - 1);
    Say("delete %ld to %ld", first, last);
    ExpectSettled();
    if (!m_source->m_refusesRows)
        m_model.Delete(first, last);
    m_editor->ExecDeleteRows(first, last);
}

void EditorRun::DeleteSelectedRecords() {
    if (m_model.Rows() < 3 || m_view.m_shown.empty())
        return;
    const long first = m_random.Below(static_cast<int>(m_model.Rows()) - 1);
    Say("delete the selected records from %ld", first);
    m_editor->ClearSelections();
    m_editor->SelectRange(0, first, 0, first + 1);
    if (!IsReadOnly()) {
        ExpectSettled();
        if (!m_source->m_refusesRows)
            m_model.Delete(first, first + 1);
    }
    m_editor->CEditorCore::OnDeleteRows(false);
}

void EditorRun::DeleteFilteredRecords() {
    if (!UsesFilter() || IsReadOnly() || m_editor->IsInMultipleSelection())
        return;
    Say("delete the filtered records");
    ExpectSettled();
    if (NextAnswer() == IDYES && !m_source->m_refusesRows) {
        Records kept;
        for (long row = 0; row < m_model.Rows(); ++row) {
            if (!Passes(row))
                kept.push_back(m_model.m_records[static_cast<size_t>(row)]);
        }
        m_model.Boundary();
        m_model.Change(kept);
        m_model.Boundary();
    }
    m_editor->OnDeleteRows();
}

// --- Pasting, cutting, replacing

void EditorRun::PasteText() {
    std::string text;
    for (int rows = 1 + m_random.Below(2); rows > 0; --rows) {
        for (int cols = 1 + m_random.Below(3); cols > 0; --cols)
            text += RandomText(3) + (cols > 1 ? "\t" : rows > 1 ? "\r\n" : "");
    }
    Say("paste %s", text.c_str());
    if (IsReadOnly())
        return;
    ExpectSettled();
    ExpectPasted(text, m_editor->GetCurrentCol(), m_editor->GetCurrentRow());
    CString all(text.c_str());
    m_editor->Paste(all);
}

void EditorRun::PasteClipboard() {
    const int cols = 1 + m_random.Below(kFields), rows = 1 + m_random.Below(2);
    std::string text;
    for (int i = 0; i < rows * cols; ++i)
        text += RandomText(3) + (i + 1 == rows * cols ? "" : (i + 1) % cols == 0 ? "\r\n" : "\t");
    Say("paste %d x %d from the clipboard", cols, rows);
    CString all(text.c_str());
    m_editor->CopyToClipBoard(&all);
    if (!IsReadOnly() && BoxIsOpen() && cols * rows <= 1) {
        m_boxUndone = false; // pasted into the box, whatever that changes
        m_editor->OnPaste();
        return;
    }
    if (IsReadOnly()) {
        m_editor->OnPaste();
        return;
    }
    ExpectFinish();
    int left = 0, right = 0;
    long top = 0, bottom = 0;
    const bool multiple = m_editor->IsInMultipleSelection() && SelectedBlock(&left, &top, &right, &bottom);
    const bool match = multiple && right - left + 1 == cols && bottom - top + 1 == rows;
    const int shown = static_cast<int>(m_view.m_shown.size());
    const int col = match ? left : m_editor->GetCurrentCol();
    const long row = match ? top : m_editor->GetCurrentRow();
    if ((!multiple || match) && cols <= shown && (match || col + cols <= shown)) {
        m_model.Boundary();
        const bool whole = cols == shown && !multiple;
        const long missing = whole ? rows : row + rows - m_model.Rows();
        if (missing > 0 && !m_source->m_refusesRows)
            m_model.Insert(whole ? row : m_model.Rows(), missing);
        if (missing <= 0 || !m_source->m_refusesRows)
            ExpectPasted(text, whole ? 0 : col, row);
        m_model.Boundary();
    }
    m_editor->OnPaste();
}

void EditorRun::Cut() {
    const bool toClipboard = m_random.OneIn(2);
    Say("cut");
    int left, right;
    long top, bottom;
    if (BoxIsOpen()) {
        m_boxUndone = false;
    } else if (!IsReadOnly() && SelectedBlock(&left, &top, &right, &bottom)) {
        m_model.Boundary();
        for (long row = top; row <= bottom; ++row) {
            for (int col = left; col <= right; ++col)
                Put(row, m_view.m_shown[static_cast<size_t>(col)], "");
        }
        m_model.Boundary();
    }
    m_editor->OnCut(toClipboard);
}

// All matches of one letter in all fields, as one step.
void EditorRun::Replace() {
    CFindReplaceData data;
    data.SetData("a", "z", true, true, kSearchDown, Search::kAnywhere, false);
    Say("replace a by z");
    if (m_view.m_shown.empty() || IsReadOnly() || m_source->m_refusesValues)
        return;
    ExpectSettled();
    if (m_model.Rows() > 0) // else no cell is looked at
        m_model.Boundary();
    for (int col = 0; col < static_cast<int>(m_view.m_shown.size()); ++col) {
        const int field = m_view.m_shown[static_cast<size_t>(col)];
        for (long row = col == 0 ? m_editor->GetCurrentRow() : 0; row < m_model.Rows(); ++row) {
            std::string text = Stored(row, field);
            const size_t at = text.find('a');
            if (at == std::string::npos || (m_editor->IsFilterAttached() && !Passes(row)))
                continue;
            Put(row, field, text.replace(at, 1, "z"));
        }
    }
    if (m_model.Rows() > 0)
        m_model.Boundary();
    WithDialog all([](HWND dialog) { ::SendMessageA(dialog, WM_COMMAND, CYesNoCancelAllDlg::kAll, 0); }, true);
    m_editor->SendMessage(kMsgReplaceNext, reinterpret_cast<WPARAM>(&data), 0);
}

// --- Selection and mouse

void EditorRun::Select() {
    if (m_view.m_shown.empty())
        return;
    Say("select");
    const int cols = static_cast<int>(m_view.m_shown.size());
    const int rows = static_cast<int>(std::max(m_model.Rows(), 1L));
    m_editor->ClearSelections();
    m_editor->SelectRange(m_random.Below(cols), m_random.Below(rows), m_random.Below(cols + 1), m_random.Below(rows + 1));
}

void EditorRun::Click() {
    const int x = m_random.Below(400), y = m_random.Below(200);
    Say("click %d,%d", x, y);
    ExpectFinish();
    const bool shift = m_random.OneIn(4);
    HeldKeys held(shift ? std::initializer_list<int>{VK_SHIFT} : std::initializer_list<int>{});
    PressLeft(m_editor->Cells(), x, y);
    const CPoint to(m_random.Below(300), m_random.Below(150));
    CRect cells;
    ::GetClientRect(m_editor->Cells(), &cells);
    if (m_random.OneIn(3) && cells.PtInRect(to)) // beyond the cells it would scroll on until the button comes up
        MoveMouse(m_editor->Cells(), to.x, to.y, MK_LBUTTON);
    ReleaseLeft(m_editor->Cells(), x, y);
}

void EditorRun::DoubleClick() {
    const int x = m_random.Below(300), y = m_random.Below(150);
    Say("double click %d,%d", x, y);
    ExpectFinish();
    PressLeft(m_editor->Cells(), x, y);
    ReleaseLeft(m_editor->Cells(), x, y);
    ::SendMessageA(m_editor->Cells(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, y));
    ReleaseLeft(m_editor->Cells(), x, y);
}

void EditorRun::LeaveWindow() {
    Say("leave the window");
    ExpectFinish();
    m_window->SetFocus();
    m_editor->SetFocus();
}

// --- Settings

void EditorRun::ChangeMode() {
    const int mode = m_random.Of({kEditNormal, kEditNormal, kEditVerify, kEditVerify, kEditReadOnly});
    Say("mode %d", mode);
    ExpectSettled();
    m_editor->SetEditMode(mode);
}

void EditorRun::ChangeFilter() {
    const bool attach = m_random.OneIn(2);
    Say(attach ? "attach the filter" : "detach the filter");
    attach ? m_editor->OnAttachFilter(kFilterNumber) : m_editor->OnDetachFilter();
    m_editor->SetUseFilteredRecords(m_random.OneIn(2));
}

void EditorRun::ChangeRefusals() {
    m_source->m_refusesValues = m_random.OneIn(4);
    m_source->m_refusesRows = m_random.OneIn(4);
    Say("refuse values %d rows %d", m_source->m_refusesValues, m_source->m_refusesRows);
}

void EditorRun::ChangeEnterKey() {
    Say("toggle Enter");
    CEditorCore::ToggleEnterKey();
}

// Another program has taken the first record out of the table: what was typed over it goes nowhere.
void EditorRun::RowsChangedBelow() {
    if (m_model.Rows() == 0)
        return;
    Say("a record goes under the editor");
    const bool refused = std::exchange(m_source->m_refusesRows, false);
    m_source->DeleteRows(0, 1);
    m_source->m_refusesRows = refused;
    m_model.Delete(0, 0);
    m_view.ForgetHistory();
    m_editor->OnDataSourceNotify(0, 1, 0);
}

void EditorRun::Save() {
    Say("save");
    ExpectFinish();
    if (m_model.CanUndo()) // else the file holds everything already
        m_model.ForgetHistory();
    m_editor->OnSave();
}
