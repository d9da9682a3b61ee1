# -Wno-sign-conversion: clang includes it in -Wconversion, GCC does not; every container indexed by int would trigger
# it.
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
    -Wold-style-cast)
set(CMAKE_COMPILE_WARNING_AS_ERROR ${QUARN_WARNINGS_AS_ERRORS})
