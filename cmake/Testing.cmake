# GoogleTest from the distribution's sources, and the one way in which tests are added.
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
include(GoogleTest)

# orvane_add_test(NAME SOURCES... [LIBS...])
# Natively every test case is a ctest test of its own. Under Wine a process costs more, so there one program
# is one ctest test.
function(orvane_add_test name)
    cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LIBS" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE orvane_options ${arg_LIBS} gmock gtest)
    target_compile_definitions(${name} PRIVATE ORVANE_SAMPLES="${PROJECT_SOURCE_DIR}/samples")
    if(WIN32)
        add_test(NAME ${name} COMMAND ${name})
        set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT} RESOURCE_LOCK display)
    else()
        gtest_discover_tests(${name} TEST_PREFIX ${name}. DISCOVERY_MODE PRE_TEST
                             PROPERTIES TIMEOUT ${arg_TIMEOUT})
    endif()
endfunction()
