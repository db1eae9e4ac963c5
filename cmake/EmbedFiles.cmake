# quillmere_embed_files(TARGET DIRECTORY SOURCE HEADER NAMESPACE)
#
# Writes SOURCE, a C++ file that carries every file under DIRECTORY, found by its path relative to
# DIRECTORY, and adds it to TARGET. HEADER declares embeddedFile and embeddedFileNames in NAMESPACE. The
# assembler reads the bytes, so that size costs no compile time.
function(quillmere_embed_files target directory source header namespace)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS ${directory}/*)
    list(SORT files)
    set(assembly "")
    set(declarations "")
    set(names "")
    set(contents "")
    set(index 0)
    foreach(file IN LISTS files)
        cmake_path(RELATIVE_PATH file BASE_DIRECTORY ${directory} OUTPUT_VARIABLE name)
        set(symbol ${target}_file_${index})
        string(APPEND assembly
            "    \".globl ${symbol}\\n.hidden ${symbol}\\n${symbol}:\\n.incbin \\\"${file}\\\"\\n\"\n"
            "    \".globl ${symbol}_end\\n.hidden ${symbol}_end\\n${symbol}_end:\\n.byte 0\\n\"\n")
        string(APPEND declarations "extern const char ${symbol}[];\nextern const char ${symbol}_end[];\n")
        string(APPEND names "    \"${name}\",\n")
        string(APPEND contents "    {${symbol}, ${symbol}_end},\n")
        math(EXPR index "${index} + 1")
    endforeach()
    if(index EQUAL 0)
        message(FATAL_ERROR "no file to embed in ${directory}")
    endif()

    set(QUILLMERE_EMBED_HEADER ${header})
    set(QUILLMERE_EMBED_NAMESPACE ${namespace})
    set(QUILLMERE_EMBED_ASSEMBLY "${assembly}")
    set(QUILLMERE_EMBED_DECLARATIONS "${declarations}")
    set(QUILLMERE_EMBED_NAMES "${names}")
    set(QUILLMERE_EMBED_CONTENTS "${contents}")
    set(QUILLMERE_EMBED_COUNT ${index})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/EmbeddedFiles.cpp.in ${source} @ONLY)
    set_source_files_properties(${source} PROPERTIES OBJECT_DEPENDS "${files}")
    target_sources(${target} PRIVATE ${source})
endfunction()
