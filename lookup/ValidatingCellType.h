// COrvaneValidatingCellType: how the editor and its operations check a text without knowing the cell type behind
// it. A cell type whose id was taken with kind 2 of CEditorCore::GetNewCellTypeId implements it beside CUGCellType.
#pragma once

class COrvaneValidatingCellType {
public:
    // A text is about to be final. Null means the text in the edit box, or else the cell's. Grid column.
    virtual void OnSetText(int col, long row, const char *text) = 0;
    virtual bool IsTextValid(const char *text) = 0;
    // Does what the user chose for invalid codes. `dataSource` says that `col` is the source's column.
    virtual bool DoInvalidCodeAction(int col, long row, const char *text, bool dataSource) = 0;

protected:
    ~COrvaneValidatingCellType() = default;
};
