# The editor of data files, in its window.
set(DATAEDITOR_WINDOW_SOURCES
    DataEditorDlgs.cpp
    FindReplaceData.cpp
    OrvaneEditor_Appearance.cpp
    OrvaneEditor_Filters.cpp
    OrvaneEditor_Find.cpp
    OrvaneEditor_Frame.cpp
    OrvaneEditor_Replace.cpp
)
list(TRANSFORM DATAEDITOR_WINDOW_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
