# The sources are compiled once and linked twice: `quarn` is installed and exports only public symbols; `quarn_static`,
# never installed, gives tests, benchmarks and fuzz harnesses access to internal functions.
include(GenerateExportHeader)

file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/*.cpp)
file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/include/*.h)

set(generated_include ${PROJECT_BINARY_DIR}/include)
configure_file(${PROJECT_SOURCE_DIR}/cmake/Version.h.in ${generated_include}/quarn/Version.h @ONLY)

add_library(quarn_objects OBJECT ${sources})
set_target_properties(quarn_objects PROPERTIES
    POSITION_INDEPENDENT_CODE ON
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
target_compile_definitions(quarn_objects PRIVATE
    quarn_EXPORTS  # CMake defines it for sources of `quarn` itself only
    QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
target_include_directories(quarn_objects PRIVATE
    ${PROJECT_SOURCE_DIR}/include ${generated_include} ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(quarn_objects PRIVATE Qt5::Core)

add_library(quarn SHARED $<TARGET_OBJECTS:quarn_objects>)
add_library(quarn::quarn ALIAS quarn)
generate_export_header(quarn EXPORT_FILE_NAME ${generated_include}/quarn/Export.h)
set_target_properties(quarn PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    VERIFY_INTERFACE_HEADER_SETS ON)
target_sources(quarn PUBLIC FILE_SET HEADERS
    BASE_DIRS ${PROJECT_SOURCE_DIR}/include ${generated_include}
    FILES ${headers} ${generated_include}/quarn/Export.h ${generated_include}/quarn/Version.h)
target_compile_features(quarn PUBLIC cxx_std_17)
target_link_libraries(quarn PUBLIC Qt5::Core)

add_library(quarn_static STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:quarn_objects>)
target_compile_definitions(quarn_static INTERFACE QUARN_STATIC_DEFINE)
target_include_directories(quarn_static INTERFACE
    ${PROJECT_SOURCE_DIR}/include ${generated_include} ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(quarn_static PUBLIC Qt5::Core)

# Compiles each public header alone.
add_custom_target(check_headers)
add_dependencies(check_headers quarn_verify_interface_header_sets)
