# What every target of the project is compiled with.

add_library(quillmere_warnings INTERFACE)
target_compile_options(quillmere_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<BOOL:${QUILLMERE_WERROR}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # Optimising, GCC 12 sees overlapping copies in "x" + std::string that are not there (its bug 105651).
    target_compile_options(quillmere_warnings INTERFACE -Wno-restrict)
endif()

if(QUILLMERE_SANITIZE)
    add_compile_options(-fsanitize=${QUILLMERE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${QUILLMERE_SANITIZE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # Instrumented code reads as uninitialised to GCC where it is not; its manual says so.
        target_compile_options(quillmere_warnings INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()

if(QUILLMERE_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
