// The view of the columns: which fields are shown, and in which order. It changes nothing in the data. The order
// stands in the layout and, as column translations, in the grid; the two agree after every change.
#include "editorcore/EditorCore.h"
#include "editorcore/FrozenWidthScope.h"
#include "editorcore/MemoryGuard.h"
#include "editorcore/TableWatch.h"
#include "grid/PaintingScope.h"

#include <algorithm>

namespace {

bool SameOrder(const CUIntArray &a, const CUIntArray &b) {
    return a.GetSize() == b.GetSize() && std::equal(a.GetData(), a.GetData() + a.GetSize(), b.GetData());
}

} // namespace

// --- Queries

bool CEditorCore::GetDisplayCols(CUIntArray &fields) {
    m_pLayout->GetDisplayCols(fields);
    return true;
}

void CEditorCore::GetVirtualColPostions(CUIntArray &positions) {
    m_pLayout->GetColPositions(positions);
}

void CEditorCore::GetVirtualColInfo(CStringArray &names, CArray<bool, bool> &shown) {
    names.RemoveAll();
    shown.RemoveAll();
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source == nullptr)
        return;
    CUIntArray positions;
    GetVirtualColPostions(positions);
    for (int i = 0; i < positions.GetSize(); ++i) {
        const int field = static_cast<int>(positions.GetAt(i));
        CString name;
        source->GetColName(field, &name);
        names.Add(name);
        shown.Add(!m_pLayout->IsFieldHidden(field));
    }
}

void CEditorCore::GetDisplayColNames(CStringArray &names) {
    names.RemoveAll();
    for (int col = 0; col < GetNumberCols(); ++col) {
        CString name;
        GetColName(col, name);
        names.Add(name);
    }
}

bool CEditorCore::IsFieldHidden(const char *name) {
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source == nullptr)
        return false;
    CString field;
    for (int i = 0; i < source->GetNumCols(); ++i) {
        if (source->GetColName(i, &field) == GRID_SUCCESS && field.CompareNoCase(name) == 0)
            return m_pLayout->IsFieldHidden(i);
    }
    return true;
}

bool CEditorCore::CanHideCols() {
    return m_pLayout != nullptr && m_pLayout->CountDisplayCols() > 0;
}

int CEditorCore::GetColumnCellType(int gridCol) {
    CUGCell cell;
    GetCell(gridCol, 0, &cell);
    return cell.GetCellType();
}

// --- Changing the view

// The grid's columns after the list. Memory can run out half-way: the caller puts the old order back then.
void CEditorCore::ShowFields(const CUIntArray &fields) {
    CUGDataSource *source = GetCurrentDataSrc(false);
    if (source == nullptr)
        return;
    NoteChange(&TableState::columns);
    {
        CPaintingScope quiet(this);
        const CFrozenWidthScope keepingStep(this);
        CUIntArray widths;
        m_pLayout->GetColWidths(widths);
        const int count = static_cast<int>(fields.GetSize());
        SetNumberCols(count);
        for (int col = 0; col < count; ++col) {
            const int field = static_cast<int>(fields.GetAt(col));
            CString name;
            source->GetColName(field, &name);
            QuickSetText(col, -1, name);
            SetColTranslation(col, field);
            if (field >= 0 && field < widths.GetSize())
                SetColWidth(col, static_cast<int>(widths.GetAt(field)));
        }
        m_pColCellTypes->Apply();
        SetTextAlignment();
        CancelSelectionMode(true); // it names columns that show other fields now
    }
    PostCommandsChanged();
}

// Runs a change of the view. When memory runs out in it the view goes back to what it was, and false is answered.
template <class Change> bool CEditorCore::ChangeView(Change change) {
    CUIntArray shown, positions;
    const bool changed = RunInMemory([&] {
        SettleEdit();
        m_pLayout->GetDisplayCols(shown);
        m_pLayout->GetColPositions(positions);
        change();
    });
    if (changed)
        return true;
    if (positions.GetSize() > 0) {
        RunInMemory([&] {
            m_pLayout->RestoreOrder(shown, positions);
            ShowFields(shown);
        });
    }
    return false;
}

void CEditorCore::DisplayCols(const CUIntArray &fields) {
    if (!ChangeView([&] { ShowFields(fields); }))
        ReportOutOfMemory();
}

void CEditorCore::ReOrderCols(const CUIntArray &fields) {
    if (!ChangeView([&] { ShowOrder(fields); }))
        ReportOutOfMemory();
}

void CEditorCore::ShowOrder(const CUIntArray &fields) {
    m_pLayout->SetDisplayOrder(fields, GetTotalDataSrcFields());
    ShowFields(fields);
}

void CEditorCore::ShowWithout(const CUIntArray &gridCols) {
    for (int i = static_cast<int>(gridCols.GetSize()) - 1; i >= 0; --i)
        m_pLayout->RemoveDisplayCol(static_cast<int>(gridCols.GetAt(i))); // backwards: the others keep their numbers
    CUIntArray shown;
    m_pLayout->GetDisplayCols(shown);
    ShowFields(shown);
}

void CEditorCore::ShowWith(const CUIntArray &gridCols, const CUIntArray &fields) {
    for (int i = 0; i < gridCols.GetSize() && i < fields.GetSize(); ++i)
        m_pLayout->InsertDisplayCol(static_cast<int>(gridCols.GetAt(i)), static_cast<int>(fields.GetAt(i)));
    CUIntArray shown;
    m_pLayout->GetDisplayCols(shown);
    ShowFields(shown);
}

void CEditorCore::HideCols(const CUIntArray &gridCols) {
    if (!ChangeView([&] { ShowWithout(gridCols); }))
        ReportOutOfMemory();
}

void CEditorCore::UnHideCols(const CUIntArray &gridCols, const CUIntArray &fields) {
    if (!ChangeView([&] { ShowWith(gridCols, fields); }))
        ReportOutOfMemory();
}

void CEditorCore::ResetFieldsOrder() {
    SettleEdit();
    NoteChange(&TableState::columns);
    for (int col = 0; col < GetNumberCols(); ++col)
        SetColTranslation(col, col);
    m_pColCellTypes->Apply();
}

void CEditorCore::OnReorderCols() {
    m_pColCellTypes->Apply();
}

void CEditorCore::OnColReorder() {}

// --- The user's commands

// The grid columns of the selection, or the current one; false when there is none.
bool CEditorCore::CollectSelectedCols(CUIntArray &cols) {
    int first, last;
    long top, bottom;
    if (GetCurrentSelection(&first, &top, &last, &bottom) != GRID_SUCCESS)
        first = last = GetCurrentCol();
    first = std::max(first, 0);
    last = std::min(last, GetNumberCols() - 1);
    if (first > last)
        return false;
    for (int col = first; col <= last; ++col)
        cols.Add(static_cast<UINT>(col));
    return true;
}

void CEditorCore::OnHideCols() {
    if (!CanHideCols())
        return;
    std::unique_ptr<ReorderCommand> command;
    CUIntArray cols;
    const bool changed = ChangeView([&] {
        command = std::make_unique<ReorderCommand>(this, &CEditorCore::ExecHideCols, &CEditorCore::UnExecHideCols);
        if (!CollectSelectedCols(cols))
            return;
        command->m_Before.Copy(cols);
        for (int i = 0; i < cols.GetSize(); ++i)
            command->m_After.Add(static_cast<UINT>(GetDataSrcField(static_cast<int>(cols.GetAt(i)))));
        ShowWithout(cols);
        KeepCommand(std::move(command));
    });
    if (!changed) {
        AfxMessageBox("Low memory - cannot carry out operation!", MB_ICONHAND, 0);
        return;
    }
    if (cols.GetSize() > 0)
        PostCommandsChanged();
}

// Takes the command into the history; without depth there is none to keep it.
void CEditorCore::KeepCommand(std::unique_ptr<CCommand> command) {
    if (m_pCommandList->GetMaxCommands() >= 1)
        m_pCommandList->AddCommand(command.release());
}

void CEditorCore::OnUnHideCols() {
    std::unique_ptr<ReorderCommand> command;
    CStringArray names;
    CArray<bool, bool> shown;
    const CTableWatch watch(this);
    const bool asked = RunInMemory([&] {
        command = std::make_unique<ReorderCommand>(this, &CEditorCore::ExecOrderCols, &CEditorCore::UnExecOrderCols);
        SettleEdit();
        GetDisplayCols(command->m_Before);
        GetVirtualColInfo(names, shown);
        ms_pAppInterface->PromptFieldVisibility(names, shown);
    });
    if (!asked) {
        ReportOutOfMemory();
        return;
    }
    if (!watch.SameTable())
        return;
    const bool kept = RunInMemory([&] {
        GetDisplayCols(command->m_After);
        if (!SameOrder(command->m_Before, command->m_After))
            KeepCommand(std::move(command));
    });
    if (!kept)
        EmptyUndoList(); // what it holds is told in columns of a view that stands no more
    PostCommandsChanged();
}

// The fields of the names, in the names' order. A name that no field has leaves field 0 in its place.
void CEditorCore::FieldsOfNames(const CStringArray &names, CUIntArray &fields) {
    CUGDataSource *source = GetCurrentDataSrc(false);
    fields.SetSize(names.GetSize());
    for (int i = 0; i < names.GetSize(); ++i)
        fields.SetAt(i, 0);
    CString name;
    for (int field = 0; source != nullptr && field < source->GetNumCols(); ++field) {
        source->GetColName(field, &name);
        for (int i = 0; i < names.GetSize(); ++i) {
            if (name.CompareNoCase(names.GetAt(i)) == 0)
                fields.SetAt(i, static_cast<UINT>(field));
        }
    }
}

void CEditorCore::OnOrderCols(CStringArray *order) {
    CEditCommandGuard guard(this);
    std::unique_ptr<ReorderCommand> command;
    CStringArray names;
    const CTableWatch watch(this);
    const bool ready = RunInMemory([&] {
        command = std::make_unique<ReorderCommand>(this, &CEditorCore::ExecOrderCols, &CEditorCore::UnExecOrderCols);
        SettleEdit(); // before the host's dialog takes the focus
        GetDisplayCols(command->m_Before);
        if (order != nullptr)
            names.Copy(*order);
        else
            GetDisplayColNames(names);
        if (order == nullptr && !ms_pAppInterface->PromptFieldOrder(&names))
            command.reset();
    });
    if (!ready || command == nullptr || !watch.SameTable())
        return;
    const bool changed = ChangeView([&] {
        FieldsOfNames(names, command->m_After);
        ShowOrder(command->m_After);
        KeepCommand(std::move(command));
    });
    if (changed)
        PostCommandsChanged();
}

// --- What the commands of the history do

bool CEditorCore::ExecOrderCols(ReorderCommand *command) {
    ReOrderCols(command->m_After);
    return true;
}

bool CEditorCore::UnExecOrderCols(ReorderCommand *command) {
    ReOrderCols(command->m_Before);
    return true;
}

bool CEditorCore::ExecHideCols(ReorderCommand *command) {
    HideCols(command->m_Before);
    return true;
}

bool CEditorCore::UnExecHideCols(ReorderCommand *command) {
    UnHideCols(command->m_Before, command->m_After);
    return true;
}

bool CEditorCore::ExecUnHideCols(ReorderCommand *command) {
    return ExecOrderCols(command);
}

bool CEditorCore::UnExecUnHideCols(ReorderCommand *command) {
    return UnExecOrderCols(command);
}
