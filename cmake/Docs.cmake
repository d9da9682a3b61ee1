find_package(Doxygen QUIET)
if(DOXYGEN_FOUND)
    configure_file(cmake/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
    add_custom_target(docs
        COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/Doxyfile
        COMMENT "API reference in docs/html/ of the build folder")
else()
    add_custom_target(docs
        COMMAND ${CMAKE_COMMAND} -E echo "The API reference needs doxygen: install it and configure again."
        COMMAND ${CMAKE_COMMAND} -E false
        VERBATIM)
endif()
