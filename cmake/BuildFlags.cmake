# What every target of the project is compiled with.

add_library(quillmere_warnings INTERFACE)
target_compile_options(quillmere_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<BOOL:${QUILLMERE_WERROR}>:-Werror>)

if(QUILLMERE_SANITIZE)
    add_compile_options(-fsanitize=${QUILLMERE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${QUILLMERE_SANITIZE})
endif()

if(QUILLMERE_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
