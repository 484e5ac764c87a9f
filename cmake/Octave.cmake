# Which Octave the package is for: the one whose mkoctfile is found. Without one there is no package.
if(NOT VELLOX_OCTAVE)
    return()
endif()

find_program(MKOCTFILE mkoctfile)
find_program(OCTAVE_CLI octave-cli)
if(NOT MKOCTFILE OR NOT OCTAVE_CLI)
    message(STATUS "Octave isn't installed: its package isn't built")
    set(VELLOX_OCTAVE OFF)
    return()
endif()
foreach(variable OCTINCLUDEDIR OCTLIBDIR)
    execute_process(
        COMMAND ${MKOCTFILE} -p ${variable}
        OUTPUT_VARIABLE octave_${variable} ERROR_QUIET OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY
    )
endforeach()
find_library(OCTINTERP octinterp PATHS ${octave_OCTLIBDIR} REQUIRED NO_DEFAULT_PATH)
find_library(LIBOCTAVE octave PATHS ${octave_OCTLIBDIR} REQUIRED NO_DEFAULT_PATH)
add_library(Octave::interpreter INTERFACE IMPORTED)
target_include_directories(
    Octave::interpreter SYSTEM INTERFACE ${octave_OCTINCLUDEDIR}/.. ${octave_OCTINCLUDEDIR}
)
target_link_libraries(Octave::interpreter INTERFACE ${OCTINTERP} ${LIBOCTAVE})
