// What a table and its view are expected to be: plain copies, an undo of whole copies, and no cleverness at all.
#pragma once

#include <string>
#include <vector>

using Records = std::vector<std::vector<std::string>>; // by row and field

// What was done and can be undone, as whole copies.
template <class State> class CopiedHistory {
public:
    bool CanUndo() const { return !m_undo.empty(); }
    bool CanRedo() const { return !m_redo.empty(); }
    // The state before a change; what could be redone ends here.
    void Note(const State &before) {
        m_undo.push_back(before);
        m_redo.clear();
    }
    void DropOldest() { m_undo.erase(m_undo.begin()); }
    size_t Depth() const { return m_undo.size(); }
    void Undo(State *state) { Travel(m_undo, m_redo, state); }
    void Redo(State *state) { Travel(m_redo, m_undo, state); }
    void Forget() {
        m_undo.clear();
        m_redo.clear();
    }

private:
    static void Travel(std::vector<State> &from, std::vector<State> &to, State *state) {
        to.push_back(*state);
        *state = from.back();
        from.pop_back();
    }

    std::vector<State> m_undo, m_redo;
};

// The records with the undo of the source: changes gather in one group until a boundary.
class TableModel {
public:
    Records m_records;

    void Boundary() { m_open = false; }
    void Change(const Records &next) {
        if (next == m_records)
            return;
        if (!m_open)
            m_history.Note(m_records);
        m_open = true;
        m_records = next;
    }
    void Write(long row, int field, const std::string &text) {
        Records next = m_records;
        next[static_cast<size_t>(row)][static_cast<size_t>(field)] = text;
        Change(next);
    }
    // Empty records before `row`.
    void Insert(long row, long count) {
        Records next = m_records;
        next.insert(next.begin() + row, static_cast<size_t>(count), std::vector<std::string>(m_fields));
        Change(next);
    }
    void Append(long count) { Insert(Rows(), count); }
    void Delete(long first, long last) {
        Records next = m_records;
        next.erase(next.begin() + first, next.begin() + last + 1);
        Change(next);
    }
    bool CanUndo() const { return m_history.CanUndo(); }
    bool CanRedo() const { return m_history.CanRedo(); }
    void Undo() {
        m_history.Undo(&m_records);
        m_open = false;
    }
    void Redo() {
        m_history.Redo(&m_records);
        m_open = false;
    }
    void ForgetHistory() {
        m_history.Forget();
        m_open = false;
    }
    long Rows() const { return static_cast<long>(m_records.size()); }

    size_t m_fields = 0;

private:
    CopiedHistory<Records> m_history;
    bool m_open = false;
};

// The fields shown, with the view's own undo of a limited depth.
class ViewModel {
public:
    static constexpr size_t kDepth = 5;

    std::vector<int> m_shown;

    void Change(const std::vector<int> &next) {
        if (m_history.Depth() == kDepth)
            m_history.DropOldest();
        m_history.Note(m_shown);
        m_shown = next;
    }
    bool CanUndo() const { return m_history.CanUndo(); }
    bool CanRedo() const { return m_history.CanRedo(); }
    void Undo() { m_history.Undo(&m_shown); }
    void Redo() { m_history.Redo(&m_shown); }
    void ForgetHistory() { m_history.Forget(); }

private:
    CopiedHistory<std::vector<int>> m_history;
};
