# What needs no window, compiled natively too.
set(GRID_MODEL_SOURCES
    UGAxis.cpp
    UGCell.cpp
    UGDataSource.cpp
    UGDrawRules.cpp
    UGGridInfo.cpp
    UGMem.cpp
    UGMem_Search.cpp
    UGScrollRange.cpp
    UGSelectionList.cpp
)

# The windows and what draws.
set(GRID_WINDOW_SOURCES
    UGCell_Gdi.cpp
)
list(TRANSFORM GRID_MODEL_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
list(TRANSFORM GRID_WINDOW_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
