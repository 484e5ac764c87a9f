# Packs the parts of a folder into a package: the list of types first, no entries for folders, the same bytes
# every time.
#
#     cmake -D FOLDER=<folder> -D PACKAGE=<file> -P PackTemplate.cmake

file(GLOB_RECURSE parts LIST_DIRECTORIES false RELATIVE ${FOLDER} ${FOLDER}/_rels/* ${FOLDER}/_rels/.rels
     ${FOLDER}/docProps/* ${FOLDER}/ppt/*
)
list(REMOVE_DUPLICATES parts)
list(SORT parts)
get_filename_component(target_folder ${PACKAGE} DIRECTORY)
file(MAKE_DIRECTORY ${target_folder})
file(REMOVE ${PACKAGE})
execute_process(
    COMMAND ${CMAKE_COMMAND} -E tar cf ${PACKAGE} --format=zip "--mtime=1980-01-02 00:00:00 UTC" -- "[Content_Types].xml"
            ${parts}
    WORKING_DIRECTORY ${FOLDER} COMMAND_ERROR_IS_FATAL ANY
)
