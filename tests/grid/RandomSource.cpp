#include "RandomSource.h"

#include "grid/UGCtrl.h"

namespace {

constexpr int kTypes[] = {0, 1, 2, 6, 1002, 5, 0, 8, 0, 2};
constexpr size_t kWrittenMost = 500; // older ones are forgotten

} // namespace

int RandomSource::GetCell(int col, long row, CUGCell *cell) {
    if (Fails(40))
        return GRID_ERROR;
    if (col < 0) {
        cell->SetText(std::to_string(row).c_str());
        return GRID_SUCCESS;
    }
    const auto written = m_written.find({col, row});
    cell->SetText(written != m_written.end() ? written->second.c_str()
                                             : std::to_string((col * 7 + row * 3 + m_kind) % 110).c_str());
    cell->SetCellType(kTypes[(col + m_kind) % std::size(kTypes)]);
    cell->SetLabelText("one\ntwo\nthree\n");
    if (row % 11 == 5)
        cell->SetReadOnly(1);
    if (col % 5 == 3)
        cell->SetMask("99\\-99");
    else if (col % 7 == 6)
        cell->SetMaxLength(4);
    if (row % 97 == 50 && col == 0)
        cell->SetCellType(4); // makes a font for each paint
    Join(col, row, cell);
    return GRID_SUCCESS;
}

// Blocks of two by three, and cells whose block begins where there is no cell.
void RandomSource::Join(int col, long row, CUGCell *cell) const {
    const long inTwenty = row % 20;
    if (col >= 1 && col <= 2 && inTwenty >= 7 && inTwenty <= 9)
        cell->SetJoin(col == 1 && inTwenty == 7, 1, row - inTwenty + 7);
    else if (m_kind == 1 && col == 4 && inTwenty == 15)
        cell->SetJoin(false, 400, row + 70000);
    else if (m_kind == 2 && col == 0 && inTwenty == 3)
        cell->SetJoin(false, -3, -3);
}

int RandomSource::SetCell(int col, long row, CUGCell *cell) {
    if (Fails(5))
        return GRID_ERROR;
    if (m_written.size() >= kWrittenMost) {
        m_written.clear();
        m_ctrl->RedrawAll();
    }
    m_written[{col, row}] = cell->GetText();
    return GRID_SUCCESS;
}

long RandomSource::GetNumRows() {
    return Fails(3) ? -1 : m_kind == 1 ? 300 : 40;
}

int RandomSource::GetNumCols() {
    return Fails(3) ? -1 : 6 + m_kind;
}

int RandomSource::GetColName(int col, CString *name) {
    if (Fails(5))
        return GRID_ERROR;
    *name = ("F" + std::to_string(col)).c_str();
    return GRID_SUCCESS;
}

int RandomSource::RequestMoreRows(long, long wanted, long *found) {
    if (Fails(2))
        return GRID_ERROR;
    *found = m_grows && m_random->OneIn(2) ? wanted : 0;
    return GRID_SUCCESS;
}
