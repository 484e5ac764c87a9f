# What tests need that run in a host which isn't instrumented itself.

# Appends to a list of environment variables what lets a host load modules with sanitizers: their runtime has to be there
# first. Hosts keep memory until their process ends, so that leaks aren't looked for.
function(vellox_prepare_host variable)
    if(NOT VELLOX_SANITIZE)
        return()
    endif()
    foreach(library asan stdc++)
        execute_process(
            COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=lib${library}.so
            OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY
        )
        list(APPEND preload ${file})
    endforeach()
    list(JOIN preload " " preload)
    set(${variable} ${${variable}} "LD_PRELOAD=${preload}" ASAN_OPTIONS=detect_leaks=0 PARENT_SCOPE)
endfunction()
