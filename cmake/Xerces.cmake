# How the library is linked to Xerces: the target vellox_xerces.
#
# Debian's shared library of Xerces brings curl, and with it Kerberos, LDAP and GnuTLS, which take longer to load than a
# small deck takes to be made. Its archive, in the library itself, does without: parts of it give way to stand-ins of ours.
# Who would rather mend Xerces in one place says -D VELLOX_HOLDS_XERCES=OFF.

option(VELLOX_HOLDS_XERCES "Link Xerces' archive into the library, without access to the net" ON)

set(stand_ins ${PROJECT_SOURCE_DIR}/vellox/opc/XercesStandIns.cpp)
set(archive_options LINKER:--exclude-libs,libxerces-c.a)
foreach(function 23initializeRangeTokenMap 27initializeRegularExpression 34initializeDatatypeValidatorFactory
                 31initializeGeneralAttributeCheck 25initializeComplexTypeInfo
)
    list(APPEND archive_options LINKER:--wrap=_ZN11xercesc_3_214XMLInitializer${function}Ev)
endforeach()

if(VELLOX_HOLDS_XERCES)
    find_library(XERCES_ARCHIVE libxerces-c.a)
    pkg_check_modules(icu IMPORTED_TARGET icu-uc)
    if(XERCES_ARCHIVE AND icu_FOUND AND XercesC_VERSION VERSION_LESS 3.3)
        # Archives are compiled for programs. Whether this one can be part of a shared library, the linker knows.
        try_compile(
            XERCES_ARCHIVE_FITS ${PROJECT_BINARY_DIR}/xerces
            SOURCES ${stand_ins} ${PROJECT_SOURCE_DIR}/vellox/opc/XercesProcess.cpp
            CMAKE_FLAGS -DINCLUDE_DIRECTORIES=${PROJECT_SOURCE_DIR}
            COMPILE_DEFINITIONS -fPIC -fvisibility=hidden
            LINK_OPTIONS -shared LINKER:-z,text ${archive_options}
            LINK_LIBRARIES ${XERCES_ARCHIVE} PkgConfig::icu
            CXX_STANDARD 17
        )
    endif()
    if(NOT XERCES_ARCHIVE_FITS)
        message(STATUS "There is no archive of Xerces 3.2 to link in: each process will load Xerces and what that needs")
    endif()
endif()

add_library(vellox_xerces INTERFACE)
if(VELLOX_HOLDS_XERCES AND XERCES_ARCHIVE_FITS)
    add_library(vellox_xerces_stand_ins OBJECT ${stand_ins})
    set_target_properties(vellox_xerces_stand_ins PROPERTIES POSITION_INDEPENDENT_CODE ON)
    target_link_libraries(vellox_xerces_stand_ins PRIVATE vellox_options)
    target_sources(vellox_xerces INTERFACE $<TARGET_OBJECTS:vellox_xerces_stand_ins>)
    target_link_options(vellox_xerces INTERFACE ${archive_options})
    target_link_libraries(vellox_xerces INTERFACE ${XERCES_ARCHIVE} PkgConfig::icu)
else()
    target_link_libraries(vellox_xerces INTERFACE XercesC::XercesC)
endif()
