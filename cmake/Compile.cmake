# Warnings, sanitizers and checks that hold for every target of the project.

add_library(orvane_options INTERFACE)
target_compile_options(orvane_options INTERFACE -Wall -Wextra -Werror)
target_include_directories(orvane_options INTERFACE ${PROJECT_SOURCE_DIR})

if(WIN32)
    # The optimising compiler of this version warns of overlapping copies inside its own string class.
    target_compile_options(orvane_options INTERFACE -Wno-restrict)
    # The A interfaces throughout; the least version that holds what the windows use.
    target_compile_definitions(orvane_options INTERFACE WINVER=0x0601 _WIN32_WINNT=0x0601 NOMINMAX)
    # What ships ends at once where the stack or a buffer of known size is written past; the code for it is linked in.
    target_compile_options(orvane_options INTERFACE -fstack-protector-strong)
    target_compile_definitions(orvane_options INTERFACE $<$<OR:$<CONFIG:Release>,$<BOOL:${ORVANE_CHECKED}>>:_FORTIFY_SOURCE=2>)
    target_link_libraries(orvane_options INTERFACE -l:libssp.a -l:libssp_nonshared.a)
    if(ORVANE_CHECKED)
        target_compile_options(orvane_options INTERFACE
            -O1 -g1 -fno-omit-frame-pointer
            -fsanitize=undefined -fsanitize-undefined-trap-on-error)
        target_compile_definitions(orvane_options INTERFACE _GLIBCXX_ASSERTIONS)
    endif()
else()
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
    target_compile_options(orvane_options INTERFACE -O1 -g -fno-omit-frame-pointer ${sanitizers})
    target_compile_definitions(orvane_options INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(orvane_options INTERFACE ${sanitizers})
endif()

# Gives a shared library its export macro: dllexport while it is compiled, dllimport for its users. The
# native build links statically and leaves the macro empty.
function(orvane_export_macro target macro)
    if(WIN32)
        target_compile_definitions(${target} PRIVATE "${macro}=__declspec(dllexport)"
                                             INTERFACE "${macro}=__declspec(dllimport)")
    else()
        target_compile_definitions(${target} PUBLIC "${macro}=")
    endif()
endfunction()
