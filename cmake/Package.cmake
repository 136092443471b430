# cmake --install: what a program that embeds the editor is built and shipped with. It finds the libraries with
# find_package(orvane) and links orvane::orvane, and orvane::orvanefw_main for the entry of a program that is one
# application object.
include(CMakePackageConfigHelpers)
set(package_folder lib/cmake/orvane)

foreach(room framework/core framework/win grid lookup search editorcore dataeditor)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/${room}/ DESTINATION include/orvane/${room} FILES_MATCHING PATTERN "*.h")
endforeach()

install(TARGETS orvanefw orvane orvanefw_main EXPORT orvane
        RUNTIME DESTINATION bin ARCHIVE DESTINATION lib OBJECTS DESTINATION lib)
install(EXPORT orvane NAMESPACE orvane:: DESTINATION ${package_folder} FILE orvaneTargets.cmake)
install(FILES ${RUNTIME_LIBRARIES} DESTINATION bin)

write_basic_package_version_file(${CMAKE_BINARY_DIR}/orvaneConfigVersion.cmake COMPATIBILITY SameMinorVersion)
file(WRITE ${CMAKE_BINARY_DIR}/orvaneConfig.cmake
     "include(\${CMAKE_CURRENT_LIST_DIR}/orvaneTargets.cmake)\n")
install(FILES ${CMAKE_BINARY_DIR}/orvaneConfig.cmake ${CMAKE_BINARY_DIR}/orvaneConfigVersion.cmake
        DESTINATION ${package_folder})
