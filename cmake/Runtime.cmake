# The compiler's runtime libraries stand beside the programs: exceptions and run-time type information cross
# the project's own libraries, so every module must share one copy.
foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
                    OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    # Beside the compiler on Windows; in the target's library folder where it is packaged for cross builds.
    get_filename_component(beside_compiler ${CMAKE_CXX_COMPILER} DIRECTORY)
    foreach(folder ${beside_compiler} /usr/x86_64-w64-mingw32/lib)
        if(NOT EXISTS ${path})
            set(path ${folder}/${name})
        endif()
    endforeach()
    execute_process(COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    execute_process(COMMAND ${CMAKE_STRIP} -o ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name} ${path}
                    COMMAND_ERROR_IS_FATAL ANY)
    list(APPEND RUNTIME_LIBRARIES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name})
endforeach()
