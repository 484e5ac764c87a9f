# What find_package(vellox) and pkg-config find. There are five components: what runs, what programs are built with,
# the Python package, the Octave package, and tools for users.

include(CMakePackageConfigHelpers)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)
install(TARGETS vellox_ppt EXPORT vellox LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT
                                                                                     development
)
foreach(header ${VELLOX_PUBLIC_HEADERS})
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES ${PROJECT_SOURCE_DIR}/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder})
endforeach()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vellox)
install(EXPORT vellox NAMESPACE vellox:: FILE velloxTargets.cmake DESTINATION ${package_dir})
configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/velloxConfig.cmake.in ${PROJECT_BINARY_DIR}/velloxConfig.cmake
    INSTALL_DESTINATION ${package_dir}
)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/velloxConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/velloxConfig.cmake ${PROJECT_BINARY_DIR}/velloxConfigVersion.cmake
        DESTINATION ${package_dir}
)

# From the file's own place, so that it holds whatever prefix is installed to.
file(RELATIVE_PATH VELLOX_PREFIX_FROM_PC /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${PROJECT_SOURCE_DIR}/cmake/vellox.pc.in ${PROJECT_BINARY_DIR}/vellox.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vellox.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
