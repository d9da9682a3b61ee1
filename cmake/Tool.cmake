find_package(CLI11 2.1 QUIET)
if(NOT CLI11_FOUND)
    message(FATAL_ERROR "The command-line tool needs CLI11 2.1 or later (Debian: libcli11-dev). Install it, or set "
        "QUARN_BUILD_TOOL to OFF to build without the tool.")
endif()

# The tool links the shared library and sees public headers only, as any user of the library does.
set(tool_folder ${PROJECT_SOURCE_DIR}/tools/quarn)
file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${tool_folder}/*.cpp)
add_executable(quarn_tool ${sources})
target_include_directories(quarn_tool PRIVATE ${tool_folder})
target_link_libraries(quarn_tool PRIVATE quarn_reference quarn::quarn CLI11::CLI11)

file(RELATIVE_PATH bin_to_lib ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set_target_properties(quarn_tool PROPERTIES
    OUTPUT_NAME quarn
    INSTALL_RPATH "$ORIGIN/${bin_to_lib}")
install(TARGETS quarn_tool)
