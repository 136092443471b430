# What needs no window, compiled natively too.
set(GRID_MODEL_SOURCES
    UGAxis.cpp
    UGCell.cpp
    UGDataSource.cpp
    UGDragScroll.cpp
    UGDrawRules.cpp
    UGEditMask.cpp
    UGGridInfo.cpp
    UGMem.cpp
    UGMem_Search.cpp
    UGPlacing.cpp
    UGScrollRange.cpp
    UGSelectionList.cpp
    UGTabLayout.cpp
)

set(GRID_NATIVE_SOURCES MaskLetters_posix.cpp)

# The windows and what draws.
set(GRID_WINDOW_SOURCES
    MaskLetters_win.cpp
    UGButtonType.cpp
    UGCheckBoxType.cpp
    UGDropListType.cpp
    UGDropTarget.cpp
    UGEllipsisType.cpp
    UGLstBox.cpp
    UGShownTypes.cpp
    UGSpinButtonType.cpp
    UGCellType.cpp
    UGCell_Gdi.cpp
    UGCnrBtn.cpp
    UGCtrl.cpp
    UGCtrl_Cells.cpp
    UGCtrl_Conduct.cpp
    UGCtrl_Edit.cpp
    UGCtrl_Geometry.cpp
    UGCtrl_Move.cpp
    UGCtrl_Notify.cpp
    UGCtrl_Selection.cpp
    UGCtrl_Size.cpp
    UGCtrl_Sources.cpp
    UGCtrl_Text.cpp
    UGCtrl_Types.cpp
    UGEdit.cpp
    UGGrid.cpp
    UGGrid_Input.cpp
    UGGrid_Paint.cpp
    UGHeading.cpp
    UGHint.cpp
    UGScroll.cpp
    UGSideHdg.cpp
    UGTab.cpp
    UGTopHdg.cpp
)
list(TRANSFORM GRID_MODEL_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
list(TRANSFORM GRID_NATIVE_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
list(TRANSFORM GRID_WINDOW_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
