// EditorRun: random work at a data editor over a real table, and beside it what that work means to a simple model.
//
// Each event says to the model what it is to change before the editor gets it. A text that is being typed belongs to the
// record and the field over which its box was opened; whatever happens, it goes there or nowhere.
#pragma once

#include "DataEditorTest.h"
#include "TableModel.h"

#include "SeededRandom.h"
#include "host/sources/DbfDataSource.h"

#include <functional>
#include <string>
#include <vector>

// A table that refuses what it is told to refuse.
class RefusingSource : public CDbfDataSource {
public:
    explicit RefusingSource(Hooks hooks) : CDbfDataSource(std::move(hooks)) {}
    int SetCell(int col, long row, CUGCell *cell) override {
        return m_refusesValues ? GRID_ERROR : CDbfDataSource::SetCell(col, row, cell);
    }
    int AppendRow() override { return m_refusesRows ? GRID_ERROR : CDbfDataSource::AppendRow(); }
    int InsertRows(long row, long count) override {
        return m_refusesRows ? GRID_ERROR : CDbfDataSource::InsertRows(row, count);
    }
    int DeleteRows(long row, long count) override {
        return m_refusesRows ? GRID_ERROR : CDbfDataSource::DeleteRows(row, count);
    }
    void StartTransaction() override {
        ++m_depth;
        CDbfDataSource::StartTransaction();
    }
    void EndTransaction() override {
        --m_depth;
        CDbfDataSource::EndTransaction();
    }

    int Save() override { return Noted(CDbfDataSource::Save(), nullptr); }
    int SaveAs(const char *name, const char *options) override { return Noted(CDbfDataSource::SaveAs(name, options), name); }

    bool m_refusesValues = false, m_refusesRows = false;
    std::function<void(const char *)> m_onSaved; // under this name; null for the same
    int m_depth = 0; // of transactions

private:
    int Noted(int result, const char *name) {
        if (result == GRID_SUCCESS && m_onSaved)
            m_onSaved(name);
        return result;
    }
};

// Counts the boxes that it opens: a window's handle may be that of one before.
class RunEditor : public TestDataEditor {
public:
    using TestDataEditor::TestDataEditor;
    int OnEditStart(int col, long row, CEdit *edit) override {
        ++m_edits;
        return TestDataEditor::OnEditStart(col, row, edit);
    }

    bool IsUndone() const { return m_bEditUndone; }
    bool CanUndoView() const { return m_pCommandList->CanUndo(); }

    long m_edits = 0;
};

// What asks before changes are lost: true where the table may be closed.
using AsksToClose = std::function<bool(CDbfDataSource &)>;

struct RunTable {
    RunEditor *editor = nullptr;
    RefusingSource *source = nullptr;
};

class EditorRun {
public:
    // Opens the table of this path in an editor of its own, in place of the one before.
    using Open = std::function<RunTable(const std::string &, const AsksToClose &)>;
    // `path` is a table of kFields fields, of which kNumberField holds numbers; its filter 1 is F0 >= 'm'.
    EditorRun(unsigned seed, const std::string &path, Open open, RecordingHost *service, CallLog *log, HostWindow *window);
    ~EditorRun();
    EditorRun(const EditorRun &) = delete;
    EditorRun &operator=(const EditorRun &) = delete;
    static constexpr int kFields = 4;
    static constexpr int kNumberField = 3;
    static constexpr int kRecords = 6;
    static constexpr int kWidth = 5;
    static constexpr const char *kFilter = "F0 >= 'm'";
    static constexpr int kFilterNumber = 1;

    void Next();
    // Empty, or where editor and model disagree.
    std::string Broken();
    std::string Text() const { return m_text; } // of the last event

private:
    struct Event {
        int weight;
        void (EditorRun::*act)();
    };
    static const Event kEvents[];

    // --- Events
    void TypeCharacter();
    void KeyInBox(UINT key);
    void KeyInGrid(UINT key);
    void MoveKey();
    void EndKey();
    void DeleteKey();
    void Undo();
    void Redo();
    void HideColumns();
    void OrderColumns();
    void ShowColumns();
    void Freeze();
    void InsertRecords();
    void AppendRecord();
    void DeleteRecords();
    void DeleteSelectedRecords();
    void DeleteFilteredRecords();
    void PasteText();
    void PasteClipboard();
    void Cut();
    void Select();
    void Click();
    void DoubleClick();
    void LeaveWindow();
    void ChangeMode();
    void ChangeFilter();
    void ChangeRefusals();
    void ChangeEnterKey();
    void RowsChangedBelow();
    void Replace();
    void Save();
    void GoSomewhere();
    void ScrollView();
    void ClickHeading();
    void FocusCells();
    void Find();
    void SizeColumn();
    void SizeRows();
    void ChangeFonts();
    void ResetView();
    void EnterText();
    void PickText();
    void CutCells();
    void InsertByDialog();
    void GoToRecord();
    void SaveUnderAnotherName();
    void Close();
    void HearStranger();

    // --- Closes
    void OpenAnew();
    bool MayClose(CDbfDataSource &source);
    void DisturbQuestion();
    Records RecordsOf(CDbfDataSource &source) const;

    // --- What the model is told
    bool BoxIsOpen() const { return m_editor->Edit() != nullptr; }
    std::string BoxText() const { return WindowText(m_editor->Edit()); }
    bool BoxIsTyped() const;
    bool IsBoxOver(int col, long row) const;
    std::string Stored(long row, int field) const;
    static bool IsTaken(int field, const std::string &text);
    void Put(long row, int field, const std::string &text);
    void ExpectFinish(); // the box is finished, typed or not
    void ExpectFinishWith(std::string text);
    void ScrollMaybe(const std::function<void()> &act);
    void ExpectSettled();
    void ExpectAppendedBeforeEnter();
    bool ExpectPasted(const std::string &text, int col, long row);
    void AdoptAppended(long most);
    bool Passes(long row) const { return m_model.m_records[static_cast<size_t>(row)][0] >= "m"; }
    bool UsesFilter() const { return m_editor->IsFilterAttached() && m_editor->IsUsingFilteredRecords(); }
    bool IsReadOnly() const { return m_editor->IsGridReadOnly(); }
    bool SelectedBlock(int *left, long *top, int *right, long *bottom) const;
    int NextAnswer();
    std::string RandomText(int most);
    void Say(const char *format, ...) __attribute__((format(gnu_printf, 2, 3)));

    // --- What is looked at
    std::string BrokenTable();
    std::string BrokenView();
    std::string BrokenBox();
    std::string BrokenState();

    SeededRandom m_random;
    Open m_open;
    std::string m_path;
    Records m_saved;     // what the file holds
    bool m_disturbing = false; // something else comes while a question is up
    bool m_gone = false; // the table was closed, or its window destroyed, in the last event
    RunEditor *m_editor = nullptr; // all borrowed
    RefusingSource *m_source = nullptr;
    RecordingHost *m_service;
    CallLog *m_log;
    HostWindow *m_window;
    TableModel m_model;
    ViewModel m_view;
    int m_answers[8] = {}; // to the questions that an event may bring
    int m_expected = 0;    // of them by the model,
    int m_answered = 0;    // and of those that came
    long m_edit = 0; // the number of the box that is open, the record and field that it belongs to
    long m_boxRow = 0;
    int m_boxField = 0;
    std::string m_boxText; // as last seen; another one ends the state after an undo
    bool m_boxUndone = false;
    int m_frozen = 0;
    int m_ownWidth = 0; // of the side heading, pixels
    int m_weights = 0;
    std::string m_text;
};
