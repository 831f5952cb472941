# SPDX-License-Identifier: MIT
# The CMake package that hosts find with find_package(CeieChart).
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/CeieChart)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/CeieChartConfig.cmake.in
    ${PROJECT_BINARY_DIR}/CeieChartConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/CeieChartConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/CeieChartConfig.cmake ${PROJECT_BINARY_DIR}/CeieChartConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT dev)
install(EXPORT CeieChartTargets NAMESPACE CeieChart:: DESTINATION ${package_dir} COMPONENT dev)
