# Which Python the package is for, and where it is installed. The tests run scripts of Python, too; a build without both
# needs none.
if(NOT VELLOX_PYTHON AND NOT VELLOX_TESTS)
    return()
endif()

# Debian's own, unless another is asked for: one in front of it on the path may know none of Debian's packages.
if(NOT DEFINED Python3_EXECUTABLE AND EXISTS /usr/bin/python3)
    set(Python3_EXECUTABLE /usr/bin/python3)
endif()
find_package(Python3 REQUIRED COMPONENTS Interpreter)
if(VELLOX_PYTHON)
    find_package(Python3 3.11 REQUIRED COMPONENTS Interpreter Development.Module)
endif()

# Where Debian's Python looks: below /usr in a folder for all its versions, elsewhere in one for each.
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(default_python_dir lib/python3/dist-packages)
else()
    set(default_python_dir lib/python${Python3_VERSION_MAJOR}.${Python3_VERSION_MINOR}/dist-packages)
endif()
set(VELLOX_PYTHON_DIR ${default_python_dir} CACHE STRING "Where the Python package is installed, below the prefix")
