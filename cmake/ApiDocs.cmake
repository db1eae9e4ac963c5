# The target api-docs: the reference of the public headers in api/html of the build.

find_package(Doxygen QUIET)
if(DOXYGEN_FOUND)
    configure_file(${PROJECT_SOURCE_DIR}/docs/api/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
    add_custom_target(api-docs COMMAND ${DOXYGEN_EXECUTABLE} ${PROJECT_BINARY_DIR}/Doxyfile VERBATIM)
endif()
