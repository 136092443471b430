// The least program that shows a table: the example of the host guide.
#include <afxwin.h>

#include "dataeditor/OrvaneEditor.h"
#include "editorcore/QuietAppInterface.h"
#include "editorcore/QuietEditorOptions.h"
#include "grid/UGDefine.h"

#include <cstring>

namespace {

// A table of squares.
class Squares : public CUGDataSource {
public:
    int Open(const char *, const char *) override { return GRID_SUCCESS; }
    int Close(bool) override { return GRID_SUCCESS; }
    long GetNumRows() override { return 1000; }
    int GetNumCols() override { return 2; }
    int GetColName(int col, CString *name) override {
        *name = col == 0 ? "NUMBER" : "SQUARE";
        return GRID_SUCCESS;
    }
    int GetCell(int col, long row, CUGCell *cell) override {
        CString text;
        text.Format("%ld", col == 0 ? row : row * row);
        return col < 0 ? GRID_ERROR : cell->SetText(text);
    }
};

class Service : public CQuietAppInterface {
public:
    CUGDataSource *CreateDataSource(const char *) override { return new Squares; }
    CVEditorOptions *GetEditorOptions() override { return &m_options; }

private:
    CQuietEditorOptions m_options;
};

class Embedder : public CWinApp {
public:
    BOOL InitInstance() override {
        CEditorCore::Initialise(&m_service);
        CFrameWnd frame;
        frame.Create(nullptr, "Squares");
        COrvaneEditor editor;
        editor.CreateGrid(WS_VISIBLE, CRect(0, 0, 400, 300), &frame, AFX_IDW_PANE_FIRST);
        const bool loaded = editor.LoadData("squares", nullptr, kNoFilter, kEditReadOnly, "");
        CUGCell cell;
        editor.GetCell(1, 12, &cell);
        m_isRight = loaded && editor.GetNumberRows() == 1000 && std::strcmp(cell.GetText(), "144") == 0;
        editor.CloseDataSource(true);
        frame.DestroyWindow();
        return FALSE;
    }
    int ExitInstance() override { return m_isRight ? 0 : 1; }

private:
    Service m_service;
    bool m_isRight = false;
};

Embedder theApp;

} // namespace
