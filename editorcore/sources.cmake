# What needs no window, compiled natively too.
set(EDITORCORE_MODEL_SOURCES
    AutoScroll.cpp
    ClipboardText.cpp
    CommandList.cpp
    EditorLayout.cpp
    TableInfo.cpp
)

# The editor in its window.
set(EDITORCORE_WINDOW_SOURCES
    ColumnCellTypeMap.cpp
    EditCommandGuard.cpp
    EditorCore_BestFit.cpp
    EditorCore_Cells.cpp
    EditorCore_Clipboard.cpp
    EditorCore_Columns.cpp
    EditorCore_Editing.cpp
    EditorCore_Fonts.cpp
    EditorCore_Frame.cpp
    EditorCore_HeadingSelection.cpp
    EditorCore_History.cpp
    EditorCore_Keys.cpp
    EditorCore_Layout.cpp
    EditorCore_Load.cpp
    EditorCore_Paste.cpp
    EditorCore_Rows.cpp
    EditorCore_Save.cpp
    EditorCore_Sizing.cpp
    EditorLayout_Grid.cpp
    LibraryModule.cpp
    OrvaneCtrlInterfaceLayer.cpp
    RecordsDlg.cpp
    ResourceScope.cpp
)
list(TRANSFORM EDITORCORE_MODEL_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
list(TRANSFORM EDITORCORE_WINDOW_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
