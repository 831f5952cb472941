# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
# Read by cpack before it begins. Sources are not installed anywhere: in their archive they stand at the top.
if(CPACK_INSTALLED_DIRECTORIES)
    set(CPACK_PACKAGING_INSTALL_PREFIX /)
endif()
