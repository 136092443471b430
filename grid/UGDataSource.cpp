#include "grid/UGDataSource.h"

int CUGDataSource::Open(const char *, const char *) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::UnusedOperationA(long, long) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::Close(bool) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::Save() {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::SaveAs(const char *, const char *) {
    return GRID_NOT_IMPLEMENTED;
}

long CUGDataSource::GetNumRows() {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::GetNumCols() {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::GetColName(int, CString *) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::GetColType(int, int *) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::AppendRow() {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::InsertRow(long) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::AppendCol() {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::InsertCol(int) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::DeleteRow(long) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::DeleteCol(int) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::DeleteCell(int, long) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::Empty() {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::GetCell(int, long, CUGCell *) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::SetCell(int, long, CUGCell *) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::FindFirst(int, const char *, long *) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::FindNext(int, const char *, long *) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::SortBy(int *, int) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::SortByCol(int) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::SetOption(int, long, long) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::GetOption(int, void *, void *) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::RequestMoreRows(long, long, long *) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::GetFieldWidth(int) {
    return 0;
}

int CUGDataSource::GetFieldDecimals(int) {
    return GRID_NOT_IMPLEMENTED;
}

int CUGDataSource::InsertRows(long row, long count) {
    for (long done = 0; done < count; ++done) {
        if (InsertRow(row) != GRID_SUCCESS)
            return GRID_ERROR;
    }
    return GRID_SUCCESS;
}

int CUGDataSource::DeleteRows(long row, long count) {
    for (long done = 0; done < count; ++done) {
        if (DeleteRow(row) != GRID_SUCCESS)
            return GRID_ERROR;
    }
    return GRID_SUCCESS;
}

void CUGDataSource::StartTransaction() {}

void CUGDataSource::EndTransaction() {}

void CUGDataSource::Undo() {}

void CUGDataSource::Redo() {}

bool CUGDataSource::CanUndo() {
    return false;
}

bool CUGDataSource::CanRedo() {
    return false;
}
