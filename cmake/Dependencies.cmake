# All of these are packages of Debian 12; scripts/install-packages names them.

find_package(Boost 1.74 REQUIRED)
find_package(XercesC 3.2 REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(libzip REQUIRED IMPORTED_TARGET libzip>=1.7)
pkg_check_modules(libdeflate REQUIRED IMPORTED_TARGET libdeflate>=1.14)
pkg_check_modules(tiff REQUIRED libtiff-4>=4.5)
pkg_check_modules(xlsxwriter REQUIRED IMPORTED_TARGET xlsxwriter>=1.1)
pkg_check_modules(stb REQUIRED IMPORTED_TARGET stb)
# Without these nobody can tell whether a template's fonts are installed, and how wide their letters are.
pkg_check_modules(fontconfig IMPORTED_TARGET fontconfig>=2.13)
pkg_check_modules(freetype freetype2>=24)
# Without it nobody draws an SVG for readers that can't.
pkg_check_modules(librsvg librsvg-2.0>=2.52)
find_program(MSGFMT msgfmt REQUIRED)

# The command needs four more; a build without them goes on without it.
if(VELLOX_CLI)
    find_package(Boost 1.74 QUIET OPTIONAL_COMPONENTS regex)
    find_package(CLI11 2.1 QUIET)
    find_package(nlohmann_json 3.11 QUIET)
    find_package(yaml-cpp 0.7 QUIET)
    if(NOT (Boost_REGEX_FOUND AND CLI11_FOUND AND nlohmann_json_FOUND AND yaml-cpp_FOUND))
        message(STATUS "The command vellox is left out: scripts/install-packages cli brings what it needs")
        set(VELLOX_CLI OFF)
    endif()
endif()
