# A component is a library that hosts link: quillmere::NAME in CMake, libquillmere-NAME on the disk. It is
# static, or shared with BUILD_SHARED_LIBS, and is installed with all that finds it: the target, the
# pkg-config file and its headers in include/quillmere.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(QUILLMERE_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Quillmere)

# Programs find the libraries beside them wherever both are moved to, unless the loader looks there anyway.
if(NOT CMAKE_INSTALL_PREFIX MATCHES "^/usr(/local)?$")
    file(RELATIVE_PATH toLibraries /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
    set(QUILLMERE_PROGRAM_RPATH "$ORIGIN/${toLibraries}")
    set(QUILLMERE_LIBRARY_RPATH "$ORIGIN")
endif()

# The version, for hosts to compile against and for the library to tell.
configure_file(${PROJECT_SOURCE_DIR}/cmake/Version.h.in ${PROJECT_BINARY_DIR}/include/quillmere/Version.h @ONLY)

# quillmere_add_component(NAME SOURCES... HEADERS... [LINKS...] [BEHIND...] [MODULES...])
#
# HEADERS are named relative to include/, LINKS are other components. BEHIND are the targets of the product
# behind it, MODULES those that pkg-config calls the same: a host needs them to link the static library only.
function(quillmere_add_component name)
    cmake_parse_arguments(arg "" "" "SOURCES;HEADERS;LINKS;BEHIND;MODULES" ${ARGN})
    set(target quillmere_${name})
    add_library(${target} ${arg_SOURCES})
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
        $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>)
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_link_libraries(${target} PUBLIC ${arg_LINKS}
        PRIVATE ${arg_BEHIND} $<BUILD_INTERFACE:quillmere_warnings>)
    foreach(product IN LISTS arg_BEHIND)
        # What is built here may look behind the component.
        target_link_libraries(${target} PUBLIC $<BUILD_INTERFACE:${product}>)
    endforeach()
    # The core is made of objects, which do not tell their language.
    set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
    quillmere_keep_promise(${target} ${name})
    quillmere_install_component(${target} ${name}
        HEADERS ${arg_HEADERS} LINKS ${arg_LINKS} MODULES ${arg_MODULES})
endfunction()

# Of a shared library, the symbols of the installed headers bear the version that is kept for as long as
# the major version is the same. Those that only libraries and programs of this very build may use bear
# the version of the build, so that the loader refuses others. The rest is not to be seen.
function(quillmere_keep_promise target name)
    get_target_property(type ${target} TYPE)
    if(NOT type STREQUAL "SHARED_LIBRARY" OR NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
        return()
    endif()
    file(STRINGS ${PROJECT_SOURCE_DIR}/packaging/abi/${name}.patterns patterns REGEX "^[^#]")
    list(JOIN patterns "\n        " QUILLMERE_PUBLIC_PATTERNS)
    set(script ${PROJECT_BINARY_DIR}/abi/${name}.map)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/Symbols.map.in ${script} @ONLY)
    target_link_options(${target} PRIVATE LINKER:--version-script=${script} LINKER:--no-undefined)
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${script})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
        ${PROJECT_SOURCE_DIR}/packaging/abi/${name}.patterns)
endfunction()

# quillmere_install_component(TARGET NAME HEADERS... [LINKS...] [MODULES...])
#
# TARGET is quillmere::NAME from now on, and is installed as that.
function(quillmere_install_component target name)
    cmake_parse_arguments(arg "" "" "HEADERS;LINKS;MODULES" ${ARGN})
    add_library(quillmere::${name} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME quillmere-${name}
        EXPORT_NAME ${name}
        DEFINE_SYMBOL ""
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        INSTALL_RPATH "${QUILLMERE_LIBRARY_RPATH}")
    install(TARGETS ${target} EXPORT quillmere-${name}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${name} NAMELINK_COMPONENT development
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
    install(EXPORT quillmere-${name} NAMESPACE quillmere:: DESTINATION ${QUILLMERE_CMAKE_DIR}
        FILE Quillmere-${name}.cmake COMPONENT development)
    foreach(header IN LISTS arg_HEADERS)
        cmake_path(GET header PARENT_PATH folder)
        install(FILES ${PROJECT_SOURCE_DIR}/include/${header}
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder} COMPONENT development)
    endforeach()

    file(RELATIVE_PATH QUILLMERE_PC_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    string(REGEX REPLACE "/$" "" QUILLMERE_PC_PREFIX "${QUILLMERE_PC_PREFIX}")
    set(QUILLMERE_PC_NAME ${name})
    string(REPLACE "::" "-" QUILLMERE_PC_REQUIRES "${arg_LINKS}")
    string(REPLACE ";" " " QUILLMERE_PC_BEHIND "${arg_MODULES}")
    set(module ${PROJECT_BINARY_DIR}/pkgconfig/quillmere-${name}.pc)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/quillmere.pc.in ${module} @ONLY)
    install(FILES ${module} DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
    set_property(GLOBAL APPEND PROPERTY QUILLMERE_COMPONENTS ${name})
endfunction()

# quillmere_install_program(TARGET)
#
# A program for those who keep a register, with its manual page, which is made of what it says of itself.
function(quillmere_install_program target)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "${QUILLMERE_PROGRAM_RPATH}")
    install(TARGETS ${target} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
    set_property(GLOBAL APPEND PROPERTY QUILLMERE_PROGRAMS ${target})
endfunction()

# Once all components are there: the package file that finds them.
function(quillmere_install_package)
    set(QUILLMERE_BEHIND_C "")
    if(BUILD_SHARED_LIBS)
        get_property(QUILLMERE_BEHIND_C GLOBAL PROPERTY QUILLMERE_COMPONENTS)
        list(REMOVE_ITEM QUILLMERE_BEHIND_C c)
    endif()
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/QuillmereConfig.cmake.in
        ${PROJECT_BINARY_DIR}/QuillmereConfig.cmake INSTALL_DESTINATION ${QUILLMERE_CMAKE_DIR}
        NO_SET_AND_CHECK_MACRO)
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/QuillmereConfigVersion.cmake
        COMPATIBILITY SameMajorVersion)
    install(FILES ${PROJECT_BINARY_DIR}/QuillmereConfig.cmake ${PROJECT_BINARY_DIR}/QuillmereConfigVersion.cmake
        DESTINATION ${QUILLMERE_CMAKE_DIR} COMPONENT development)
    install(FILES ${PROJECT_BINARY_DIR}/include/quillmere/Version.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/quillmere COMPONENT development)
endfunction()
