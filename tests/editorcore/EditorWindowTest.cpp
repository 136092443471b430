#include "EditorWindowTest.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

std::string TestEditor::State() {
    return "cur=(" + std::to_string(GetCurrentCol()) + "," + std::to_string(GetCurrentRow()) +
           ") size=" + std::to_string(GetNumberCols()) + "x" + std::to_string(CUGCtrl::GetNumberRows());
}

namespace {

template <class Array> std::string Numbers(const Array &values) {
    std::string all;
    for (int i = 0; i < values.GetSize(); ++i)
        all += (i > 0 ? "," : "") + std::to_string(values.GetAt(i));
    return all;
}

} // namespace

std::string TestEditor::Order() {
    CUIntArray shown, positions;
    GetDisplayCols(shown);
    GetVirtualColPostions(positions);
    std::string disagreement;
    if (GetNumberCols() != shown.GetSize())
        disagreement += " but the grid shows " + std::to_string(GetNumberCols());
    for (int col = 0; col < shown.GetSize() && col < GetNumberCols(); ++col) {
        CString heading;
        GetColName(col, heading);
        const int field = static_cast<int>(shown.GetAt(col));
        if (GetDataColNumber(col) != field || heading != ("F" + std::to_string(field)).c_str())
            disagreement += " but column " + std::to_string(col) + " shows " + heading.GetString();
    }
    return Numbers(shown) + " of " + Numbers(positions) + disagreement;
}

std::string TestEditor::Widths() {
    CArray<int, int> widths;
    for (int col = 0; col < GetNumberCols(); ++col) {
        int width = 0;
        GetColWidth(col, &width);
        widths.Add(width);
    }
    return Numbers(widths);
}

std::string TestEditor::FieldWidths() {
    CUIntArray widths;
    m_pLayout->GetColWidths(widths);
    return Numbers(widths);
}

std::string TestEditor::Selection() {
    int left, right;
    long top, bottom;
    std::string all = "none";
    if (GetCurrentSelection(&left, &top, &right, &bottom) == GRID_SUCCESS)
        all = std::to_string(left) + "," + std::to_string(top) + ".." + std::to_string(right) + "," +
              std::to_string(bottom);
    return all + " mode=" + std::to_string(m_nHeadingSelectMode) + " anchor=(" + std::to_string(m_nSelectAnchorCol) +
           "," + std::to_string(m_nSelectAnchorRow) + ")";
}

void TestEditor::OnLClicked(int col, long row, int updn, RECT *rect, POINT *point, int processed) {
    m_log->Note("Click(" + std::to_string(col) + "," + std::to_string(row) + ")");
    CEditorCore::OnLClicked(col, row, updn, rect, point, processed);
}

EditorWindowTest::EditorWindowTest() {
    m_folder = (fs::temp_directory_path() / ("orvane" + std::to_string(::GetCurrentProcessId()))).string();
    std::error_code none;
    fs::remove_all(m_folder, none); // of a run of the same number that was ended
    fs::create_directories(m_folder);
    CEditorCore::Initialise(&m_service);
    m_log.Take();
    TestApp().Answer({});
    TestApp().TakeBoxes();
}

EditorWindowTest::~EditorWindowTest() {
    m_editors.clear();
    EXPECT_EQ(0, TestEditor::Live());
    std::error_code error;
    fs::remove_all(m_folder, error);
    EXPECT_FALSE(error) << "a file is still open: " << error.message();
    TestApp().m_whileUp = nullptr;
}

TestEditor &EditorWindowTest::Make() {
    m_editors.push_back(std::make_unique<TestEditor>(&m_log));
    TestEditor &editor = *m_editors.back();
    editor.CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), &m_host, 200 + static_cast<UINT>(m_editors.size()));
    return editor;
}

RecordingSource *EditorWindowTest::Source(int fields, long rows, const std::string &name) {
    auto *source = new RecordingSource(&m_log, fields, rows, name);
    m_service.m_sources.push_back(source);
    return source;
}

TestEditor &EditorWindowTest::Open(int fields, long rows, int mode) {
    TestEditor &editor = Make();
    m_source = Source(fields, rows);
    EXPECT_TRUE(editor.LoadData("table", nullptr, mode, ""));
    Forget();
    return editor;
}

void EditorWindowTest::Forget() {
    PumpAll();
    m_log.Take();
    m_host.TakeMessages();
    TestApp().TakeBoxes();
}

std::string EditorWindowTest::MakeFile(const char *name, const std::string &content) {
    std::ofstream(PathOf(name), std::ios::binary) << content;
    return PathOf(name);
}

std::string EditorWindowTest::Content(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return "none";
    std::ostringstream all;
    all << file.rdbuf();
    return all.str();
}
