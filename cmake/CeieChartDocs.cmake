# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
# The target ceiechart_docs, for short docs: generates the reference of the public classes, with the guides, into
# reference/html of the build tree, and beside it ceiechart.tag, to which other references made with Doxygen can link, and
# ceiechart.qch for Qt Assistant. A public member without a comment is an error, and so is a link that leads nowhere.
if(NOT PROJECT_IS_TOP_LEVEL AND NOT CEIECHART_BUILD_DOCS)
    return() # another project is not searched for tools that it does not need
endif()
if(CEIECHART_BUILD_DOCS)
    set(docs_required REQUIRED)
endif()
find_package(Doxygen QUIET ${docs_required})
find_package(Python3 QUIET ${docs_required} COMPONENTS Interpreter)
if(DOXYGEN_FOUND AND Python3_FOUND)
    # Qt keeps its tools in a folder of their own.
    set(qt_tools)
    if(TARGET Qt${CEIECHART_QT_VERSION}::moc)
        get_target_property(moc Qt${CEIECHART_QT_VERSION}::moc LOCATION)
        get_filename_component(qt_tools "${moc}" DIRECTORY)
    endif()
    find_program(ceiechart_qhelpgenerator NAMES qhelpgenerator HINTS "${qt_tools}" ${docs_required}
        DOC "The tool that writes help files of Qt")
    mark_as_advanced(ceiechart_qhelpgenerator)
    set(ceiechart_has_qch NO)
    if(ceiechart_qhelpgenerator)
        set(ceiechart_has_qch YES)
    endif()

    configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
    set(all)
    if(CEIECHART_BUILD_DOCS)
        set(all ALL)
    endif()
    add_custom_target(ceiechart_docs ${all} COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/Doxyfile VERBATIM)
    if(PROJECT_IS_TOP_LEVEL)
        add_custom_target(docs DEPENDS ceiechart_docs)
    endif()
    if(CEIECHART_BUILD_DOCS)
        ceiechart_install(DIRECTORY ${PROJECT_BINARY_DIR}/reference/html
            DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libceiechart-doc COMPONENT doc PATTERN "index.qh*" EXCLUDE)
        ceiechart_install(FILES ${PROJECT_BINARY_DIR}/reference/ceiechart.tag ${PROJECT_BINARY_DIR}/reference/ceiechart.qch
            DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libceiechart-doc COMPONENT doc)
    endif()
endif()
