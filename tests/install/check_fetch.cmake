# Takes vellox into another project by FetchContent: nothing but the library comes with it. With COMPILE the program is
# built and run, too, which compiles the whole library once more.
#
#     cmake -D SOURCE=<source tree> -D WORK=<scratch folder> [-D COMPILE=ON] -P check_fetch.cmake

file(REMOVE_RECURSE ${WORK})
execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/fetch -B ${WORK} -G Ninja -D VELLOX_SOURCE=${SOURCE}
    COMMAND_ERROR_IS_FATAL ANY
)
execute_process(
    COMMAND ${CMAKE_COMMAND} --build ${WORK} -- -t commands all
    OUTPUT_VARIABLE steps COMMAND_ERROR_IS_FATAL ANY
)
if(steps MATCHES "/(tests|cli|tools|examples|fuzz|benchmarks|bindings)/CMakeFiles[^ ]*\\.o")
    message(FATAL_ERROR "more than the library is built: ${CMAKE_MATCH_0}")
endif()
if(NOT steps MATCHES "outside.cpp.o -o report" OR NOT steps MATCHES "PackTemplate")
    message(FATAL_ERROR "the program or the template isn't made:\n${steps}")
endif()
if(COMPILE)
    execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK} COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${WORK}/report ${WORK}/fetched.pptx COMMAND_ERROR_IS_FATAL ANY)
endif()
