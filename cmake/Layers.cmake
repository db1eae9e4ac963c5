# quillmere_add_layer(NAME FOLDER DEPENDS...)
#
# The folder FOLDER of src/ as the library quillmere_NAME, alias quillmere::NAME, linked to what it may
# include. A folder that has no .cpp yet gives a library of headers.
function(quillmere_add_layer name folder)
    set(target quillmere_${name})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp)
    set(roots ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/include ${PROJECT_BINARY_DIR}/include)
    if(sources)
        add_library(${target} STATIC ${sources})
        target_include_directories(${target} PUBLIC ${roots})
        target_link_libraries(${target} PUBLIC ${ARGN} PRIVATE quillmere_warnings)
    else()
        add_library(${target} INTERFACE)
        target_include_directories(${target} INTERFACE ${roots})
        target_link_libraries(${target} INTERFACE ${ARGN})
    endif()
    add_library(quillmere::${name} ALIAS ${target})
endfunction()

# quillmere_add_program(NAME FOLDER DEPENDS...)
#
# The folder FOLDER as the program NAME out of main.cpp and the library NAME-lib out of all the rest, so
# that tests can link the rest. Includes are written relative to the folder above, as "scenario/Script.h",
# or to the root, as "sample/Csv.h".
function(quillmere_add_program name folder)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${folder}/*.cpp)
    set(main ${folder}/main.cpp)
    list(FIND sources ${main} found)
    list(REMOVE_ITEM sources ${main})
    cmake_path(GET folder PARENT_PATH above)

    set(library ${name}-lib)
    if(sources)
        add_library(${library} STATIC ${sources})
        target_include_directories(${library} PUBLIC ${PROJECT_SOURCE_DIR} ${above})
        target_link_libraries(${library} PUBLIC ${ARGN} PRIVATE quillmere_warnings)
    else()
        add_library(${library} INTERFACE)
        target_include_directories(${library} INTERFACE ${PROJECT_SOURCE_DIR} ${above})
        target_link_libraries(${library} INTERFACE ${ARGN})
    endif()
    if(NOT found EQUAL -1)
        add_executable(${name} ${main})
        target_link_libraries(${name} PRIVATE ${library} quillmere_warnings)
        quillmere_install_program(${name})
    endif()
endfunction()
