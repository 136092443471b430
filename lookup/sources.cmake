# What needs no window, compiled natively too.
set(LOOKUP_MODEL_SOURCES
    Archive.cpp
    ArchiveArrays.cpp
    CodeCompare.cpp
    LookupNode.cpp
    LookupRegKey.cpp
    LookupTableFile.cpp
    LookupTableFileCompiler.cpp
    LookupTableFileCompiler_Levels.cpp
    LookupTableFileCompiler_Outline.cpp
    LookupTree.cpp
    MenuList.cpp
    MenuPaths.cpp
    MenuSection.cpp
    MenuTree.cpp
    PoolCodes.cpp
    PoolText.cpp
    RegistryKey.cpp
    ScramblePassword.cpp
    TreePool.cpp
    TrieSection.cpp
)
set(LOOKUP_NATIVE_SOURCES CodePage_posix.cpp RegistryKey_posix.cpp WideText_posix.cpp)
set(LOOKUP_WINDOW_SOURCES CodePage_win.cpp LookupList.cpp LookupOptionsMgr.cpp LookupPasswordDlgs.cpp
    RegistryKey_win.cpp UGOrvaneLookupCellType_Options.cpp WideText_win.cpp)
list(TRANSFORM LOOKUP_MODEL_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
list(TRANSFORM LOOKUP_NATIVE_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
list(TRANSFORM LOOKUP_WINDOW_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
