#include "DataEditorTest.h"

#include <set>

TestDataEditor &DataEditorTest::MakeEditor() {
    m_dataEditors.push_back(std::make_unique<TestDataEditor>(&m_log));
    TestDataEditor &editor = *m_dataEditors.back();
    editor.CreateGrid(WS_VISIBLE, CRect(0, 0, 500, 300), &m_host, 300 + static_cast<UINT>(m_dataEditors.size()));
    return editor;
}

TestDataEditor &DataEditorTest::OpenEditor(int fields, long rows, int filter, int mode) {
    TestDataEditor &editor = MakeEditor();
    m_source = Source(fields, rows);
    EXPECT_TRUE(editor.LoadData("table", nullptr, filter, mode, nullptr));
    Forget();
    return editor;
}

TestDataEditor &DataEditorTest::OpenFiltered(int fields, long rows, std::initializer_list<long> passing) {
    TestDataEditor &editor = OpenEditor(fields, rows, 3);
    m_source->m_passes = [records = std::set<long>(passing)](long record) { return records.count(record) > 0; };
    editor.SetUseFilteredRecords(true);
    Forget();
    return editor;
}

void DataEditorTest::Key(TestDataEditor &editor, UINT key, UINT character) {
    ::SendMessageA(editor.Cells(), WM_KEYDOWN, key, 1);
    if (character != 0)
        SendChar(editor.Cells(), character);
}
