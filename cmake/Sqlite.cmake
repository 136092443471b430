# SQLite, compiled from its amalgamation, which tools/packages puts into build/sqlite. ORVANE_SQLITE may name
# another folder with sqlite3.c and sqlite3.h.
set(ORVANE_SQLITE ${PROJECT_SOURCE_DIR}/build/sqlite CACHE PATH "Folder of SQLite's amalgamation")
if(NOT EXISTS ${ORVANE_SQLITE}/sqlite3.c)
    message(FATAL_ERROR "There is no sqlite3.c in ${ORVANE_SQLITE}; tools/packages fetches it.")
endif()

# One thread, no files of its own, no texts in double quotes; columns for all fields that a table's header can hold.
add_library(orvane_sqlite STATIC ${ORVANE_SQLITE}/sqlite3.c)
target_include_directories(orvane_sqlite SYSTEM PUBLIC ${ORVANE_SQLITE})
target_compile_definitions(orvane_sqlite PRIVATE SQLITE_THREADSAFE=0 SQLITE_DQS=0 SQLITE_DEFAULT_MEMSTATUS=0
                           SQLITE_OMIT_LOAD_EXTENSION SQLITE_OMIT_DEPRECATED SQLITE_OMIT_SHARED_CACHE
                           SQLITE_TEMP_STORE=3 SQLITE_MAX_COLUMN=2046)
target_compile_options(orvane_sqlite PRIVATE -O2 -w)
