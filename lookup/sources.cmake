# What needs no window, compiled natively too.
set(LOOKUP_MODEL_SOURCES
    Archive.cpp
    ArchiveArrays.cpp
    CodeCompare.cpp
    LookupNode.cpp
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
    TreePool.cpp
    TrieSection.cpp
)
set(LOOKUP_NATIVE_SOURCES CodePage_posix.cpp WideText_posix.cpp)
set(LOOKUP_WINDOW_SOURCES CodePage_win.cpp WideText_win.cpp)
list(TRANSFORM LOOKUP_MODEL_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
list(TRANSFORM LOOKUP_NATIVE_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
list(TRANSFORM LOOKUP_WINDOW_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
