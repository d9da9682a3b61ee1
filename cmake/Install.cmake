include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/quarn)
install(TARGETS quarn EXPORT quarnTargets FILE_SET HEADERS)
install(EXPORT quarnTargets NAMESPACE quarn:: DESTINATION ${package_dir})

configure_package_config_file(cmake/quarnConfig.cmake.in ${PROJECT_BINARY_DIR}/quarnConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/quarnConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/quarnConfig.cmake ${PROJECT_BINARY_DIR}/quarnConfigVersion.cmake
    DESTINATION ${package_dir})

# Relative to the file itself, so that `cmake --install --prefix` and a moved installation stay right.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pkgconfig_to_prefix ${CMAKE_INSTALL_PREFIX}/${pkgconfig_dir} ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/quarn.pc.in ${PROJECT_BINARY_DIR}/quarn.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/quarn.pc DESTINATION ${pkgconfig_dir})

install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})
