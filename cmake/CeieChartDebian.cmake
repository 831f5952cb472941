# SPDX-License-Identifier: MIT
# Debian packages, by cpack in a build tree that was configured with -DCMAKE_INSTALL_PREFIX=/usr: libceiechart1 has the
# libraries, libceiechart-dev what hosts are built with, ceiechart-viewer the program.
set(runtime_package libceiechart${PROJECT_VERSION_MAJOR})
set(dev_package libceiechart-dev)
set(viewer_package ceiechart-viewer)
foreach(component runtime dev viewer)
    if(NOT component STREQUAL viewer OR CEIECHART_BUILD_APPS)
        install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${${component}_package}
            RENAME copyright COMPONENT ${component})
    endif()
endforeach()

set(CEIECHART_PACKAGE_CONTACT "ceiechart authors <root@localhost>" CACHE STRING "Maintainer of the Debian packages")
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
set(CPACK_COMPONENT_DEV_DEPENDS runtime)
set(CPACK_COMPONENT_VIEWER_DEPENDS runtime)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "Qt widgets that show and edit display gamuts on the CIE 1931 and CIE 1976\nchromaticity diagrams.")
set(CPACK_DEBIAN_DEV_PACKAGE_NAME ${dev_package})
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS qtbase5-dev)
if(CEIECHART_QT_VERSION EQUAL 6)
    set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS qt6-base-dev)
endif()
set(CPACK_COMPONENT_DEV_DESCRIPTION
    "Headers, CMake package, pkg-config modules, Qt Designer plugin and documents\nof ceiechart.")
set(CPACK_DEBIAN_VIEWER_PACKAGE_NAME ${viewer_package})
set(CPACK_DEBIAN_VIEWER_PACKAGE_SECTION graphics)
set(CPACK_COMPONENT_VIEWER_DESCRIPTION
    "The gamut viewer: shows the gamuts of a display on chromaticity diagrams and\nedits its target.")
include(CPack)
