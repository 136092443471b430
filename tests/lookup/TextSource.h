// TextSource: a table of texts, some of which cannot be read.
#pragma once

#include "grid/UGDataSource.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

class TextSource : public CUGDataSource {
public:
    using Rows = std::vector<std::vector<const char *>>;

    TextSource(const std::string &path, int columns, const Rows &rows) : m_path(path), m_columns(columns) {
        for (const auto &row : rows) {
            m_rows.emplace_back(row.begin(), row.end());
            m_rows.back().resize(static_cast<size_t>(columns));
        }
    }

    long GetNumRows() override { return static_cast<long>(m_rows.size()); }
    int GetNumCols() override { return m_columns; }
    int GetCell(int col, long row, CUGCell *cell) override {
        if (m_unreadable.count({col, row}) > 0)
            return GRID_ERROR;
        cell->SetText(m_rows[static_cast<size_t>(row)][static_cast<size_t>(col)].c_str());
        return GRID_SUCCESS;
    }
    int GetOption(int option, void *value1, void *value2) override {
        if (option != UGSRC_PATH || *static_cast<int *>(value2) != 0)
            return GRID_ERROR;
        **static_cast<CString **>(value1) = m_path.c_str();
        return GRID_SUCCESS;
    }

    std::set<std::pair<int, long>> m_unreadable;
    std::vector<std::vector<std::string>> m_rows;

private:
    std::string m_path;
    int m_columns;
};
