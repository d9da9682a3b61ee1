# The tool links the shared library and sees public headers only, as any user of the library does.
file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tools/quarn/*.cpp)
if(sources)
    add_executable(quarn_tool ${sources})
    file(RELATIVE_PATH bin_to_lib ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set_target_properties(quarn_tool PROPERTIES
        OUTPUT_NAME quarn
        INSTALL_RPATH "$ORIGIN/${bin_to_lib}")
    target_link_libraries(quarn_tool PRIVATE quarn_reference quarn::quarn)
    install(TARGETS quarn_tool)
endif()
