# -Wno-sign-conversion: clang counts it to -Wconversion and GCC does not; containers indexed by int make it mere noise.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
    -Wold-style-cast)
set(CMAKE_COMPILE_WARNING_AS_ERROR ${QUARN_WARNINGS_AS_ERRORS})
