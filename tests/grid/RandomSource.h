// RandomSource: a table that is reckoned rather than stored, with cells of every type, joined blocks and
// read-only cells, that fails now and then.
#pragma once

#include "SeededRandom.h"

#include "grid/UGDataSource.h"

#include <map>
#include <string>
#include <utility>

class RandomSource : public CUGDataSource {
public:
    // Sources of different kinds hold different cells at the same place.
    RandomSource(SeededRandom *random, int kind) : m_random(random), m_kind(kind) {}

    int GetCell(int col, long row, CUGCell *cell) override;
    int SetCell(int col, long row, CUGCell *cell) override;
    long GetNumRows() override;
    int GetNumCols() override;
    int GetColName(int col, CString *name) override;
    int RequestMoreRows(long rowCount, long wanted, long *found) override;

    bool m_fails = false; // now and then, while set
    bool m_grows = true;  // has more rows now and then

private:
    bool Fails(int chances) { return m_fails && m_random->OneIn(chances); }
    void Join(int col, long row, CUGCell *cell) const;

    SeededRandom *m_random; // borrowed
    int m_kind;
    std::map<std::pair<int, long>, std::string> m_written;
};
