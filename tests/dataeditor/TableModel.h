// What a table and its view are expected to be: plain copies, an undo of whole copies, and no cleverness at all.
#pragma once

#include <string>
#include <vector>

using Records = std::vector<std::vector<std::string>>; // by row and field

// The records with the undo of the source: changes gather in one group until a boundary.
class TableModel {
public:
    Records m_records;

    void Boundary() { m_open = false; }
    void Change(const Records &next) {
        if (next == m_records)
            return;
        if (!m_open) {
            m_undo.push_back(m_records);
            m_redo.clear();
            m_open = true;
        }
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
    bool CanUndo() const { return !m_undo.empty(); }
    bool CanRedo() const { return !m_redo.empty(); }
    void Undo() { Travel(m_undo, m_redo); }
    void Redo() { Travel(m_redo, m_undo); }
    void ForgetHistory() {
        m_undo.clear();
        m_redo.clear();
        m_open = false;
    }
    long Rows() const { return static_cast<long>(m_records.size()); }

    size_t m_fields = 0;

private:
    void Travel(std::vector<Records> &from, std::vector<Records> &to) {
        to.push_back(m_records);
        m_records = from.back();
        from.pop_back();
        m_open = false;
    }

    std::vector<Records> m_undo, m_redo;
    bool m_open = false;
};

// The fields shown, with the view's own undo of a limited depth.
class ViewModel {
public:
    static constexpr size_t kDepth = 5;

    std::vector<int> m_shown;

    void Change(const std::vector<int> &next) {
        if (m_undo.size() == kDepth)
            m_undo.erase(m_undo.begin());
        m_undo.push_back(m_shown);
        m_redo.clear();
        m_shown = next;
    }
    bool CanUndo() const { return !m_undo.empty(); }
    bool CanRedo() const { return !m_redo.empty(); }
    void Undo() { Travel(m_undo, m_redo); }
    void Redo() { Travel(m_redo, m_undo); }
    void ForgetHistory() {
        m_undo.clear();
        m_redo.clear();
    }

private:
    void Travel(std::vector<std::vector<int>> &from, std::vector<std::vector<int>> &to) {
        to.push_back(m_shown);
        m_shown = from.back();
        from.pop_back();
    }

    std::vector<std::vector<int>> m_undo, m_redo;
};
