# What only a package needs: manual pages, the reference, what a desktop reads, and cpack's .deb files.

include(GNUInstallDirs)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)

# The change log tells when a version was released.
file(STRINGS ${PROJECT_SOURCE_DIR}/CHANGELOG.md released REGEX "^## \\[${PROJECT_VERSION}\\] - ")
if(NOT released MATCHES "([0-9]+-[0-9]+-[0-9]+)$")
    message(FATAL_ERROR "CHANGELOG.md does not tell when ${PROJECT_VERSION} was released.")
endif()
set(QUILLMERE_RELEASE_DATE ${CMAKE_MATCH_1})

get_property(programs GLOBAL PROPERTY QUILLMERE_PROGRAMS)
foreach(program IN LISTS programs)
    file(STRINGS ${packaging}/programs.txt line REGEX "^${program}\\|")
    if(NOT line)
        message(FATAL_ERROR "packaging/programs.txt does not tell what ${program} is for.")
    endif()
    string(REGEX REPLACE "^[^|]*\\|" "" purpose "${line}")
    set(page ${PROJECT_BINARY_DIR}/man/${program}.1)
    add_custom_command(OUTPUT ${page}
        COMMAND ${CMAKE_COMMAND} -D PROGRAM=$<TARGET_FILE:${program}> -D NAME=${program} -D "PURPOSE=${purpose}"
            -D VERSION=${PROJECT_VERSION} -D PAGE=${page} -P ${PROJECT_SOURCE_DIR}/cmake/ManualPage.cmake
        DEPENDS ${program} ${PROJECT_SOURCE_DIR}/cmake/ManualPage.cmake VERBATIM)
    list(APPEND pages ${page})
endforeach()
add_custom_target(manual-pages ALL DEPENDS ${pages})
install(FILES ${pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)

if(TARGET quillmere-register)
    configure_file(${packaging}/quillmere-register.metainfo.xml.in
        ${PROJECT_BINARY_DIR}/quillmere-register.metainfo.xml @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/quillmere-register.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT tools)
    install(FILES ${packaging}/quillmere-register.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT tools)
    install(FILES ${PROJECT_SOURCE_DIR}/apps/register/quillmere-register.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT tools)
endif()

set(documents ${CMAKE_INSTALL_DATADIR}/doc/quillmere-doc)
file(GLOB texts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/*.md)
install(FILES ${texts} DESTINATION ${documents} COMPONENT documentation)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/images DESTINATION ${documents} COMPONENT documentation)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${documents} COMPONENT documentation
    FILES_MATCHING PATTERN *.cpp)
if(TARGET api-docs)
    set_target_properties(api-docs PROPERTIES EXCLUDE_FROM_ALL OFF)
    install(DIRECTORY ${PROJECT_BINARY_DIR}/api/html DESTINATION ${documents} COMPONENT documentation)
endif()

# One row a package: its component, its name, its section, and what it is.
get_property(components GLOBAL PROPERTY QUILLMERE_COMPONENTS)
set(CPACK_COMPONENTS_ALL)
function(quillmere_package component name section description)
    string(TOUPPER ${component} key)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_COMPONENT_${key}_DESCRIPTION "${description}" PARENT_SCOPE)
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)
    set(documents ${CMAKE_INSTALL_DATADIR}/doc/${name})
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${documents} RENAME copyright COMPONENT ${component})
    install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION ${documents} COMPONENT ${component})
endfunction()

# Libraries and programs of one build belong together: they use more of each other than is promised.
set(same "${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
foreach(component IN LISTS components)
    string(TOUPPER ${component} key)
    quillmere_package(${component} libquillmere-${component}${PROJECT_VERSION_MAJOR} libs
        "Data entry for a talent register: the library ${component}")
    set(CPACK_DEBIAN_${key}_PACKAGE_DEPENDS "libquillmere-core${same}")
endforeach()
unset(CPACK_DEBIAN_CORE_PACKAGE_DEPENDS)
# The C interface and the programs stand on all the others.
set(libraries ${components})
list(REMOVE_ITEM libraries c)
list(TRANSFORM libraries REPLACE "(.+)" "libquillmere-\\1${same}")
list(JOIN libraries ", " libraries)
set(CPACK_DEBIAN_C_PACKAGE_DEPENDS "${libraries}")

quillmere_package(development libquillmere-dev libdevel "Data entry for a talent register: for those who link it")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${libraries}")
if("c" IN_LIST components)
    string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ", libquillmere-c${same}")
endif()
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
quillmere_package(tools quillmere-tools misc "Data entry for a talent register: the reference host and tools")
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${libraries}")
set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS "fonts-noto-cjk, qt6-translations-l10n")
quillmere_package(documentation quillmere-doc doc "Data entry for a talent register: guides and reference")
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SHLIBDEPS OFF)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillmere)
set(CPACK_PACKAGE_VENDOR "The Quillmere authors")
set(CPACK_PACKAGE_CONTACT "The Quillmere authors <quillmere@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src ${PROJECT_BINARY_DIR}/lib)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
