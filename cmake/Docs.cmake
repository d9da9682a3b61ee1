find_package(Doxygen QUIET)
if(DOXYGEN_FOUND)
    configure_file(cmake/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
    add_custom_target(docs
        COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/Doxyfile
        COMMENT "API reference in docs/html/ of the build folder")
endif()
