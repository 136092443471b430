# Patterns over texts; no window and nothing of the grid.
set(SEARCH_SOURCES CellPattern.cpp PatternText.cpp RequiredText.cpp)
list(TRANSFORM SEARCH_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)

# The expression library is headers alone. The cross compiler must not see the folder that they stand in, which holds
# the machine's own headers too.
set(BOOST_OPTIONS)
if(WIN32)
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/boost)
    file(CREATE_LINK /usr/include/boost ${CMAKE_BINARY_DIR}/boost/boost SYMBOLIC)
    set(BOOST_OPTIONS "-isystem;${CMAKE_BINARY_DIR}/boost")
endif()
set_source_files_properties(${SEARCH_SOURCES} PROPERTIES COMPILE_OPTIONS "${BOOST_OPTIONS}")
