# What needs no window, compiled natively too.
set(LOOKUP_MODEL_SOURCES
    Archive.cpp
    ArchiveArrays.cpp
    LookupRegKey.cpp
    RegistryKey.cpp
    ScramblePassword.cpp
)
set(LOOKUP_NATIVE_SOURCES WideText_posix.cpp RegistryKey_posix.cpp)
set(LOOKUP_WINDOW_SOURCES WideText_win.cpp RegistryKey_win.cpp LookupList.cpp LookupOptionsMgr.cpp LookupPasswordDlgs.cpp
    UGOrvaneLookupCellType_Options.cpp)
list(TRANSFORM LOOKUP_MODEL_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
list(TRANSFORM LOOKUP_NATIVE_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
list(TRANSFORM LOOKUP_WINDOW_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
