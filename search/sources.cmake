# Patterns over texts; no window and nothing of the grid.
set(SEARCH_SOURCES CellPattern.cpp CharSets.cpp ClassEnd.cpp KeptPatterns.cpp PatternGraph.cpp PatternPieces.cpp
    PatternScreen.cpp PatternText.cpp TypedFormat.cpp TypedRegex.cpp WrappedPattern.cpp)
list(TRANSFORM SEARCH_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)

# The expression library is headers alone. A cross compiler must not see the folder that they stand in, which holds the
# machine's own headers too, so it gets a folder with a link to them.
set(ORVANE_BOOST /usr/include/boost CACHE PATH "Boost's headers: the folder named boost")
set(BOOST_OPTIONS)
if(CMAKE_CROSSCOMPILING)
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/boost)
    file(CREATE_LINK ${ORVANE_BOOST} ${CMAKE_BINARY_DIR}/boost/boost SYMBOLIC)
    set(BOOST_OPTIONS "-isystem;${CMAKE_BINARY_DIR}/boost")
elseif(WIN32)
    get_filename_component(boost_parent ${ORVANE_BOOST} DIRECTORY)
    set(BOOST_OPTIONS "-isystem;${boost_parent}")
endif()
set_source_files_properties(${SEARCH_SOURCES} PROPERTIES COMPILE_OPTIONS "${BOOST_OPTIONS}")
