// What the run's events mean to the model, and the comparison of the two.
#include "EditorRun.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <iterator>

EditorRun::EditorRun(unsigned seed, const std::string &path, Open open, RecordingHost *service, CallLog *log,
                     HostWindow *window)
    : m_random(seed), m_open(std::move(open)), m_path(path), m_service(service), m_log(log), m_window(window) {
    m_model.m_fields = kFields;
    for (int row = 0; row < kRecords; ++row) {
        m_model.m_records.emplace_back();
        for (int field = 0; field < kFields; ++field)
            m_model.m_records.back().push_back(field == kNumberField
                                                   ? std::to_string(row + 1)
                                                   : std::to_string(field) + "." + std::to_string(row));
    }
    m_saved = m_model.m_records;
    OpenAnew();
    for (const Event *event = kEvents; event->weight > 0; ++event)
        m_weights += event->weight;
    TestApp().m_whileUp = [this](const std::string &text) {
        const bool question = text.find('?') != std::string::npos;
        if (m_disturbing) {
            TestApp().Answer({question ? IDNO : IDOK});
            return;
        }
        const int answer = question ? m_answers[m_answered++ % std::size(m_answers)] : IDOK;
        DisturbQuestion(); // which may bring further ones
        TestApp().Answer({answer});
    };
}

EditorRun::~EditorRun() {
    TestApp().m_whileUp = nullptr;
}

void EditorRun::Say(const char *format, ...) {
    char text[200];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    m_text = text;
}

void EditorRun::Next() {
    for (int &answer : m_answers)
        answer = m_random.Of({IDYES, IDYES, IDNO, IDCANCEL});
    m_expected = m_answered = 0;
    int ticket = m_random.Below(m_weights);
    const Event *event = kEvents;
    while (ticket >= event->weight)
        ticket -= (event++)->weight;
    (this->*event->act)();
    if (m_gone)
        OpenAnew();
    if (m_random.OneIn(3))
        PumpAll();
    m_log->Take();
    TestApp().TakeBoxes();
    m_window->TakeMessages();
}

// --- What the model is told

std::string EditorRun::Stored(long row, int field) const {
    if (row >= m_model.Rows())
        return ""; // the placeholder
    return m_model.m_records[static_cast<size_t>(row)][static_cast<size_t>(field)];
}

bool EditorRun::BoxIsTyped() const {
    return BoxIsOpen() && BoxText() != Stored(m_boxRow, m_boxField);
}

bool EditorRun::IsTaken(int field, const std::string &text) {
    return field != kNumberField || std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

void EditorRun::Put(long row, int field, const std::string &text) {
    if (row < m_model.Rows() && !m_source->m_refusesValues && IsTaken(field, text))
        m_model.Write(row, field, text);
}

int EditorRun::NextAnswer() {
    return m_answers[m_expected++];
}

void EditorRun::ExpectFinish() {
    if (BoxIsOpen())
        ExpectFinishWith(BoxText());
}

// A box is finished before its cell scrolls away under it, and otherwise stays.
void EditorRun::ScrollMaybe(const std::function<void()> &act) {
    const bool open = BoxIsOpen();
    const std::string text = open ? BoxText() : "";
    act();
    if (open && !BoxIsOpen())
        ExpectFinishWith(text);
}

void EditorRun::ExpectFinishWith(std::string text) {
    const std::string stored = Stored(m_boxRow, m_boxField);
    const bool asked = m_editor->GetEditMode() == kEditVerify && !stored.empty() && !text.empty() && text != stored;
    if (asked && NextAnswer() != IDYES)
        text = stored;
    if (m_model.Rows() == 0) {
        if (m_source->m_refusesRows)
            return; // no record for it
        m_model.Append(1);
    }
    if (text != stored)
        m_model.Boundary();
    Put(m_boxRow, m_boxField, text);
}

void EditorRun::ExpectSettled() {
    if (BoxIsTyped())
        ExpectFinish();
}

// Enter in the last record appends one before the text is written; without any record, two where it goes down.
void EditorRun::ExpectAppendedBeforeEnter() {
    const bool atEnd = m_model.Rows() == 0 || m_editor->GetCurrentRow() == m_model.Rows() - 1;
    const bool goesDown = !CEditorCore::IsEnterKeyTab() && m_editor->GetNumberCols() > 1;
    if (m_text.find(std::to_string(VK_RETURN)) == std::string::npos || !atEnd || (!goesDown && m_model.Rows() > 0))
        return;
    m_boxUndone = false;
    if (m_source->m_refusesRows)
        return;
    const bool empty = m_model.Rows() == 0;
    m_model.Append(1);
    if (empty && goesDown)
        m_model.Append(1);
}

// Keys may append empty records at the very end.
void EditorRun::AdoptAppended(long most) {
    if (m_gone)
        return; // and the source with it
    const long more = m_source->GetNumRows() - m_model.Rows();
    if (more > 0 && more <= most && !m_source->m_refusesRows && !IsReadOnly())
        m_model.Append(more);
}

// False where nothing of it is in the table.
bool EditorRun::ExpectPasted(const std::string &text, int col, long row) {
    int across = col;
    std::string field;
    const auto put = [&] {
        if (across < static_cast<int>(m_view.m_shown.size()))
            Put(row, m_view.m_shown[static_cast<size_t>(across)], field);
        field.clear();
    };
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\t') {
            put();
            ++across;
        } else if (text[i] == '\r') {
            put();
            across = col;
            ++row;
            ++i;
        } else {
            field += text[i];
        }
    }
    if (!text.empty() && text.back() != '\t' && text.back() != '\n')
        put();
    return true;
}

bool EditorRun::SelectedBlock(int *left, long *top, int *right, long *bottom) const {
    if (m_editor->GetCurrentSelection(left, top, right, bottom) != GRID_SUCCESS)
        return false;
    *right = std::min(*right, static_cast<int>(m_view.m_shown.size()) - 1);
    *top = std::max(*top, 0L);
    *bottom = std::min(*bottom, m_model.Rows() - 1);
    return *left <= *right && *top <= *bottom;
}

std::string EditorRun::RandomText(int most) {
    constexpr char kLetters[] = "abmnz19";
    std::string text;
    for (int length = m_random.Below(most + 1); length > 0; --length)
        text += kLetters[m_random.Below(7)];
    return text;
}

// --- The comparison

std::string EditorRun::Broken() {
    for (const auto look : {&EditorRun::BrokenTable, &EditorRun::BrokenView, &EditorRun::BrokenBox,
                            &EditorRun::BrokenState}) {
        const std::string broken = (this->*look)();
        if (!broken.empty())
            return broken;
    }
    return "";
}

std::string EditorRun::BrokenTable() {
    if (m_source->GetNumRows() != m_model.Rows())
        return "the table has " + std::to_string(m_source->GetNumRows()) + " records, not " +
               std::to_string(m_model.Rows());
    CUGCell cell;
    for (long row = 0; row < m_model.Rows(); ++row) {
        for (int field = 0; field < kFields; ++field) {
            cell.ClearAll();
            m_source->GetCell(field, row, &cell);
            if (Stored(row, field) != cell.GetText())
                return "field " + std::to_string(field) + " of record " + std::to_string(row) + " is '" +
                       cell.GetText() + "', not '" + Stored(row, field) + "'";
        }
    }
    if (m_source->CanUndo() != m_model.CanUndo() || m_source->CanRedo() != m_model.CanRedo())
        return "undo or redo of the source are not as expected";
    return "";
}

std::string EditorRun::BrokenView() {
    const int cols = static_cast<int>(m_view.m_shown.size());
    if (m_editor->GetNumberCols() != cols)
        return "the grid shows " + std::to_string(m_editor->GetNumberCols()) + " columns, not " + std::to_string(cols);
    if (m_editor->CUGCtrl::GetNumberRows() != std::max(m_model.Rows(), 1L))
        return "the grid shows " + std::to_string(m_editor->CUGCtrl::GetNumberRows()) + " rows";
    CString heading;
    CUGCell cell;
    int frozen = 0;
    for (int col = 0; col < cols; ++col) {
        const int field = m_view.m_shown[static_cast<size_t>(col)];
        m_editor->GetColName(col, heading);
        if (heading != ("F" + std::to_string(field)).c_str() || m_editor->GetDataSrcField(col) != field)
            return "column " + std::to_string(col) + " is headed " + heading.GetString();
        for (long row = 0; row < m_model.Rows(); ++row) {
            m_editor->GetCell(col, row, &cell);
            if (Stored(row, field) != cell.GetText())
                return "column " + std::to_string(col) + " shows '" + cell.GetText() + "'";
        }
        int width = 0;
        m_editor->GetColWidth(col, &width);
        frozen += col < m_editor->m_GI.m_lockedCols ? width : 0;
    }
    if (m_editor->m_GI.m_lockedCols != std::min(m_frozen, cols) || m_editor->GetSH_Width() != m_ownWidth + frozen)
        return "the side heading of " + std::to_string(m_editor->GetSH_Width()) + " is out of step with " +
               std::to_string(m_editor->m_GI.m_lockedCols) + " frozen columns of " + std::to_string(frozen) + ", not " +
               std::to_string(m_frozen) + " and " + std::to_string(m_ownWidth);
    if (const int kept = m_editor->Layout()->GetWorkingCopy().m_nSideHeadingWidth; kept != m_editor->GetSH_Width())
        return "the layout keeps a side heading of " + std::to_string(kept) + ", not " +
               std::to_string(m_editor->GetSH_Width());
    return "";
}

// A box keeps the record and the field that it was opened over for its whole life.
std::string EditorRun::BrokenBox() {
    if (!BoxIsOpen())
        return "";
    const CUGGridInfo &info = m_editor->m_GI;
    const long row = info.m_editRow;
    const int field = m_editor->GetDataSrcField(info.m_editCol);
    if (IsReadOnly())
        return "a box is open in a table that is only to be read";
    if (row >= std::max(m_model.Rows(), 1L) || field < 0)
        return "a box is open over no cell";
    if (m_editor->m_edits != m_edit || BoxText() != m_boxText)
        m_boxUndone = false;
    m_boxText = BoxText();
    if (m_editor->m_edits == m_edit)
        return row == m_boxRow && field == m_boxField ? "" : "the box stays open over another cell";
    m_edit = m_editor->m_edits;
    m_boxRow = row;
    m_boxField = field;
    return "";
}

std::string EditorRun::BrokenState() {
    if (m_answered != m_expected)
        return std::to_string(m_answered) + " questions were asked, not " + std::to_string(m_expected);
    if (m_editor->CanUndoView() != m_view.CanUndo())
        return std::string("the history of the view holds ") + (m_view.CanUndo() ? "nothing" : "something");
    const CUGGridInfo &info = m_editor->m_GI;
    if (m_source->m_depth != 0)
        return "a group of the source's undo is open";
    if (info.m_paintingEnabled == 0 || info.m_suppressFinish != 0)
        return "painting is off, or an edit is kept open";
    if (::GetCapture() != nullptr)
        return "the mouse is captured with no button down";
    if (info.m_moveType != UG_MOVED_BY_PROGRAM || info.m_scrollMargin != 1)
        return "a move of the mouse has not ended";
    return "";
}
