# Installs the build into a folder of its own, moves that, and uses it from outside in both ways that there are:
# find_package and pkg-config.
#
#     cmake -D BUILD=<build tree> -D WORK=<scratch folder> -D FLAGS=<flags> -P check_install.cmake

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/first)
file(RENAME ${WORK}/first ${WORK}/prefix)
file(GLOB_RECURSE found ${WORK}/prefix/*/default.pptx ${WORK}/prefix/*/vellox.pc ${WORK}/prefix/*/libvellox_ppt.so)
list(LENGTH found count)
if(NOT count EQUAL 3)
    message(FATAL_ERROR "not all is installed: ${found}")
endif()

run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${WORK}/build -G Ninja -DCMAKE_PREFIX_PATH=${WORK}/prefix
    -DCMAKE_CXX_FLAGS=${FLAGS}
)
run(${CMAKE_COMMAND} --build ${WORK}/build)
run(${WORK}/build/outside ${WORK}/outside.pptx)
if(NOT EXISTS ${WORK}/outside.pptx)
    message(FATAL_ERROR "no deck was made")
endif()

file(GLOB_RECURSE pc ${WORK}/prefix/*/vellox.pc)
get_filename_component(pc_folder ${pc} DIRECTORY)
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${pc_folder} pkg-config --cflags --libs vellox
    OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY
)
separate_arguments(flags UNIX_COMMAND "${FLAGS} ${flags}")
get_filename_component(library_folder ${pc_folder} DIRECTORY)
run(c++ -std=c++17 ${CMAKE_CURRENT_LIST_DIR}/outside.cpp -o ${WORK}/outside ${flags} -Wl,-rpath,${library_folder})
run(${WORK}/outside ${WORK}/outside.pptx)
run(${WORK}/prefix/bin/vellox-template-check ${WORK}/outside.pptx ${WORK}/decks)
