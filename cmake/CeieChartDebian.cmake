# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
# Packages, created by cpack in a build tree that was configured with -DCMAKE_INSTALL_PREFIX=/usr. Those of Debian:
# libceiechart1 contains the libraries, libceiechart-dev the files that are needed to build hosts, libceiechart-doc the
# reference if it was built, ceiechart-viewer the program, and python3-ceiechart the Python package if it was built. The
# packages for Qt 6 have other names (libceiechart1-qt6 and so on) and conflict with those for Qt 5, because the libraries
# have the same file names. The reference is the same.
set(qt5_packages libceiechart${PROJECT_VERSION_MAJOR} libceiechart-dev ceiechart-viewer python3-ceiechart)
set(qt6_packages libceiechart${PROJECT_VERSION_MAJOR}-qt6 libceiechart-qt6-dev ceiechart-viewer-qt6
    python3-ceiechart-qt6)
list(GET qt${CEIECHART_QT_VERSION}_packages 0 runtime_package)
list(GET qt${CEIECHART_QT_VERSION}_packages 1 dev_package)
list(GET qt${CEIECHART_QT_VERSION}_packages 2 viewer_package)
list(GET qt${CEIECHART_QT_VERSION}_packages 3 python_package)
if(CEIECHART_QT_VERSION EQUAL 5)
    set(other_packages ${qt6_packages})
else()
    set(other_packages ${qt5_packages})
endif()
list(GET other_packages 0 CPACK_DEBIAN_RUNTIME_PACKAGE_CONFLICTS)
list(GET other_packages 1 CPACK_DEBIAN_DEV_PACKAGE_CONFLICTS)
list(GET other_packages 2 CPACK_DEBIAN_VIEWER_PACKAGE_CONFLICTS)
list(GET other_packages 3 CPACK_DEBIAN_PYTHON_PACKAGE_CONFLICTS)

set(CEIECHART_PACKAGE_CONTACT "ceiechart authors <authors@ceiechart.example>" CACHE STRING
    "Maintainer of the Debian packages")
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ceiechart)
set(CPACK_PACKAGE_VENDOR "the ceiechart authors")
set(CPACK_PACKAGE_CONTACT "${CEIECHART_PACKAGE_CONTACT}")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_COMPONENTS_ALL runtime dev)
if(CEIECHART_BUILD_APPS)
    list(APPEND CPACK_COMPONENTS_ALL viewer)
endif()
if(CEIECHART_BUILD_DOCS)
    list(APPEND CPACK_COMPONENTS_ALL doc)
endif()
if(CEIECHART_BUILD_PYTHON)
    list(APPEND CPACK_COMPONENTS_ALL python)
endif()
set(CPACK_COMPONENT_DEV_DEPENDS runtime)
set(CPACK_COMPONENT_VIEWER_DEPENDS runtime)
set(CPACK_COMPONENT_PYTHON_DEPENDS runtime)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_RELEASE 0upstream1) # older than any package that a distribution makes of the same version

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
# Of these files, cmake/CeieChartArchive.cmake.in writes the first two. The others do not exist: without a name here, cpack
# would write scripts that call ldconfig, for which the trigger stands in.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/triggers ${PROJECT_BINARY_DIR}/debian/symbols
    ${PROJECT_BINARY_DIR}/debian/postinst ${PROJECT_BINARY_DIR}/debian/postrm)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "Qt widgets that show and edit the colour gamuts of displays on the CIE 1931\nand CIE 1976 chromaticity diagrams.")
set(CPACK_DEBIAN_DEV_PACKAGE_NAME ${dev_package})
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS qtbase5-dev)
if(CEIECHART_QT_VERSION EQUAL 6)
    set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS qt6-base-dev)
endif()
set(CPACK_COMPONENT_DEV_DESCRIPTION
    "Headers, CMake package, pkg-config modules, Qt Designer plugin and\ndocumentation of ceiechart.")
set(CPACK_DEBIAN_VIEWER_PACKAGE_NAME ${viewer_package})
set(CPACK_DEBIAN_VIEWER_PACKAGE_SECTION graphics)
# Texts of Qt's own in the viewer's dialogs, in the language of the interface.
set(CPACK_DEBIAN_VIEWER_PACKAGE_RECOMMENDS qttranslations5-l10n)
if(CEIECHART_QT_VERSION EQUAL 6)
    set(CPACK_DEBIAN_VIEWER_PACKAGE_RECOMMENDS qt6-translations-l10n)
endif()
set(CPACK_COMPONENT_VIEWER_DESCRIPTION
    "The gamut viewer: shows the colour gamuts of a display on CIE chromaticity\ndiagrams and edits its target gamut.")
# The compiled module belongs to one version of Python.
if(CEIECHART_BUILD_PYTHON)
    find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
    math(EXPR next_python "${Python3_VERSION_MINOR} + 1")
    set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME ${python_package})
    set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
    set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
        "python3 (>= 3.${Python3_VERSION_MINOR}~), python3 (<< 3.${next_python}), python3-numpy")
    set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA
        ${PROJECT_SOURCE_DIR}/packaging/python/postinst ${PROJECT_SOURCE_DIR}/packaging/python/prerm)
    set(CPACK_COMPONENT_PYTHON_DESCRIPTION
        "Colour temperature, gamut coverage and the correction of LED walls\nfor Python, on arrays of numpy.")
endif()
set(CPACK_DEBIAN_DOC_PACKAGE_NAME libceiechart-doc)
set(CPACK_DEBIAN_DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_DOC_DESCRIPTION
    "The reference of ceiechart with the guides, as HTML and for Qt Assistant, and\na tag file with which references made with Doxygen link to it.")

list(JOIN CPACK_COMPONENTS_ALL " " debian_components)
configure_file(${PROJECT_SOURCE_DIR}/cmake/CeieChartArchive.cmake.in ${PROJECT_BINARY_DIR}/CeieChartArchive.cmake @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_BINARY_DIR}/CeieChartArchive.cmake)
configure_file(${PROJECT_SOURCE_DIR}/cmake/CeieChartSortedArchive.cmake.in
    ${PROJECT_BINARY_DIR}/CeieChartSortedArchive.cmake @ONLY)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_BINARY_DIR}/CeieChartSortedArchive.cmake)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/CeieChartSourceArchive.cmake)
set(CPACK_SOURCE_GENERATOR TGZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME ceiechart-${PROJECT_VERSION})
set(CPACK_SOURCE_IGNORE_FILES "/\\.git(/|$)" "/build/" "\\.user$" "/\\.(cache|vscode|idea)/" "/compile_commands\\.json$"
    "/__pycache__/")
include(CPack)
