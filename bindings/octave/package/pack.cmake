# Packs what `pkg install` takes: vellox-octave-<version>.tar.gz.
#
#     cmake -D SOURCE=<source tree> -D VERSION=<version> -D OUTPUT=<folder> -P pack.cmake

set(name vellox-${VERSION})
set(folder ${OUTPUT}/octave-package)
file(REMOVE_RECURSE ${folder})
file(MAKE_DIRECTORY ${folder}/${name}/inst)
string(TIMESTAMP DATE "%Y-%m-%d" UTC)
configure_file(${CMAKE_CURRENT_LIST_DIR}/DESCRIPTION.in ${folder}/${name}/DESCRIPTION @ONLY)
file(COPY ${CMAKE_CURRENT_LIST_DIR}/INDEX ${CMAKE_CURRENT_LIST_DIR}/src DESTINATION ${folder}/${name})
file(COPY ${SOURCE}/LICENSE DESTINATION ${folder}/${name})
file(RENAME ${folder}/${name}/LICENSE ${folder}/${name}/COPYING)
file(COPY ${SOURCE}/CMakeLists.txt ${SOURCE}/cmake ${SOURCE}/vellox ${SOURCE}/resources ${SOURCE}/tools
     DESTINATION ${folder}/${name}/src/vellox
)
file(COPY ${SOURCE}/bindings/octave DESTINATION ${folder}/${name}/src/vellox/bindings)
execute_process(
    COMMAND ${CMAKE_COMMAND} -E tar czf ${OUTPUT}/vellox-octave-${VERSION}.tar.gz --format=gnutar ${name}
    WORKING_DIRECTORY ${folder} COMMAND_ERROR_IS_FATAL ANY
)
message(STATUS "${OUTPUT}/vellox-octave-${VERSION}.tar.gz")
