# SPDX-License-Identifier: MIT
# The target ceiechart_docs, for short docs: generates the reference of the public classes into reference/html of the
# build tree. A public member without a comment is an error.
find_package(Doxygen QUIET)
if(DOXYGEN_FOUND)
    configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
    add_custom_target(ceiechart_docs COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/Doxyfile VERBATIM)
    if(PROJECT_IS_TOP_LEVEL)
        add_custom_target(docs DEPENDS ceiechart_docs)
    endif()
endif()
