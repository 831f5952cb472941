# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
# The files with which hosts find the library: the CMake package CeieChart and the pkg-config modules ceiechart,
# colortemperature, gamutmodel and gamutfiles. They contain no absolute paths, so that an installed tree can be moved.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/CeieChart)
# As 0 or 1: a containing project need not set the variables, and "if(NOT )" would be false in silence.
set(has_charts 0)
if(CEIECHART_BUILD_CHARTS)
    set(has_charts 1)
endif()
set(charts_are_static 0)
if(CEIECHART_BUILD_CHARTS AND NOT BUILD_SHARED_LIBS)
    set(charts_are_static 1)
    set(ceiechart_libs " ${CMAKE_THREAD_LIBS_INIT}") # nothing where the C library has them
endif()
set(gamutfiles_is_static 0)
set(gamutfiles_modules lcms2)
if(CEIECHART_READ_EDID)
    list(APPEND gamutfiles_modules colord)
endif()
set(gamutfiles_has_iconv 0)
if(CEIECHART_BUILD_GAMUTFILES AND NOT BUILD_SHARED_LIBS)
    set(gamutfiles_is_static 1)
    get_target_property(gamutfiles_links gamutfiles LINK_LIBRARIES)
    if("Iconv::Iconv" IN_LIST gamutfiles_links)
        set(gamutfiles_has_iconv 1)
        set(gamutfiles_libs " -liconv")
    endif()
endif()
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/CeieChartConfig.cmake.in
    ${PROJECT_BINARY_DIR}/CeieChartConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/CeieChartConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/CeieChartConfig.cmake ${PROJECT_BINARY_DIR}/CeieChartConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT dev)

install(FILES ${PROJECT_BINARY_DIR}/include/ceiechart/ceiechart_version.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ceiechart COMPONENT dev)

set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH prefix_from_pkgconfig /${pkgconfig_dir} /)
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig "${prefix_from_pkgconfig}")
set(colortemperature_libs "-L\${libdir} -lcolortemperature")
if(CEIECHART_COLORTEMPERATURE_LIBRARY)
    # Only the header of the companion is installed.
    set(colortemperature_cflags " -DCOLORTEMPERATURE_STATIC_DEFINE")
    if(IS_ABSOLUTE "${CEIECHART_COLORTEMPERATURE_LIBRARY}")
        set(colortemperature_libs "${CEIECHART_COLORTEMPERATURE_LIBRARY}")
    elseif(TARGET "${CEIECHART_COLORTEMPERATURE_LIBRARY}")
        set(colortemperature_libs "")
    else()
        set(colortemperature_libs "-l${CEIECHART_COLORTEMPERATURE_LIBRARY}")
    endif()
endif()
if(NOT BUILD_SHARED_LIBS)
    set(ceiechart_cflags " -DCEIECHART_STATIC_DEFINE")
    set(colortemperature_cflags " -DCOLORTEMPERATURE_STATIC_DEFINE")
    set(gamutmodel_cflags " -DGAMUTMODEL_STATIC_DEFINE")
    set(gamutfiles_cflags " -DGAMUTFILES_STATIC_DEFINE")
    set(gamutfiles_requires " lcms2")
    if(CEIECHART_READ_EDID)
        set(gamutfiles_requires " colord lcms2")
    endif()
    # Libraries that a host must link if it does not link with the C++ compiler.
    list(TRANSFORM CMAKE_CXX_IMPLICIT_LINK_LIBRARIES PREPEND "-l" OUTPUT_VARIABLE cxx_libs)
    list(FILTER cxx_libs INCLUDE REGEX "^-l(stdc\\+\\+|c\\+\\+|m)$")
    list(REMOVE_DUPLICATES cxx_libs)
    list(JOIN cxx_libs " " cxx_libs)
endif()
set(modules colortemperature gamutmodel)
if(CEIECHART_BUILD_CHARTS)
    list(APPEND modules ceiechart)
endif()
if(CEIECHART_BUILD_GAMUTFILES)
    list(APPEND modules gamutfiles)
endif()
foreach(module ${modules})
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${module}.pc.in ${PROJECT_BINARY_DIR}/pkgconfig/${module}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${module}.pc DESTINATION ${pkgconfig_dir} COMPONENT dev)
endforeach()

include(CeieChartBillOfMaterials)

# The documentation, and the examples to which it refers.
set(doc_dir ${CMAKE_INSTALL_DATADIR}/doc/libceiechart-dev)
install(FILES README.md CHANGELOG.md CONTRIBUTING.md LICENSE DESTINATION ${doc_dir} COMPONENT dev)
install(DIRECTORY docs examples DESTINATION ${doc_dir} COMPONENT dev
    FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.svg" PATTERN "main.cpp" PATTERN "CMakeLists.txt"
    PATTERN "screenshots" EXCLUDE)

if(CEIECHART_BUILD_APPS)
    install(FILES packaging/gamutviewer.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT viewer)
    install(FILES packaging/gamutviewer.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT viewer)
    install(FILES packaging/gamutviewer.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT viewer)
    # The id has to begin with a domain of whoever publishes the program. This one is reserved and belongs to nobody.
    set(CEIECHART_APPLICATION_ID example.ceiechart.gamutviewer CACHE STRING "Id of the gamut viewer in AppStream")
    configure_file(packaging/gamutviewer.metainfo.xml.in gamutviewer.metainfo.xml @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/gamutviewer.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
        RENAME ${CEIECHART_APPLICATION_ID}.metainfo.xml COMPONENT viewer)
    install(FILES packaging/gamutviewer.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
        RENAME gamutviewer.xml COMPONENT viewer)
endif()
