# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
# Settings of all targets of this project: language level, warnings, floating-point rules, include paths, and the export
# and installation of libraries.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
include(CheckPIESupported)
check_pie_supported() # for programs, which are otherwise linked as the compiler does by default
# Names in unnamed namespaces are those of a file alone, so each file is compiled by itself, also in a unity build of the
# project that contains this one; but see ceiechart_compile_together().
set(CMAKE_UNITY_BUILD OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
file(RELATIVE_PATH ceiechart_lib_from_bin /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
# The folder of a program or library, for the loader; Windows looks there without being told.
set(ceiechart_origin $ORIGIN)
if(APPLE)
    set(ceiechart_origin @loader_path)
endif()
set(CMAKE_INSTALL_RPATH ${ceiechart_origin};${ceiechart_origin}/${ceiechart_lib_from_bin})

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

add_library(ceiechart_build_flags INTERFACE)
target_compile_definitions(ceiechart_build_flags INTERFACE QT_NO_FOREACH QT_NO_KEYWORDS)
if(WIN32)
    # The headers of Windows define min and max as macros unless told not to, and M_PI only if told to.
    target_compile_definitions(ceiechart_build_flags INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN _USE_MATH_DEFINES)
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang" AND NOT MSVC) # AppleClang too, but not clang with MSVC's options
    # Results must not depend on the optimiser: fused multiply-add is disabled.
    target_compile_options(ceiechart_build_flags INTERFACE -ffp-contract=off)
    target_compile_options(ceiechart_build_flags INTERFACE -Wall -Wextra -Wpedantic
        $<$<COMPILE_LANGUAGE:CXX>:-Wshadow=local> $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>
        $<$<COMPILE_LANGUAGE:CXX>:-Wsuggest-override>)
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        # The second option is needed for a macro of QtTest.
        target_compile_options(ceiechart_build_flags INTERFACE -Wno-unknown-warning-option
            -Wno-gnu-zero-variadic-macro-arguments)
    else()
        # The straight-line vectoriser of GCC replaces pairs of conversions double -> float -> double by a copy. This
        # removes the rounding to single precision on which the arithmetic of the chart depends.
        target_compile_options(ceiechart_build_flags INTERFACE -fno-tree-slp-vectorize)
    endif()
    if(UNIX AND NOT APPLE)
        # The tables of addresses are filled in when a program starts, and then write-protected.
        target_link_options(ceiechart_build_flags INTERFACE LINKER:-z,relro LINKER:-z,now)
    endif()
    if(CEIECHART_WERROR)
        target_compile_options(ceiechart_build_flags INTERFACE -Werror)
    endif()
    if(CEIECHART_SANITIZE)
        target_compile_options(ceiechart_build_flags INTERFACE -fsanitize=address,undefined
            -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(ceiechart_build_flags INTERFACE -fsanitize=address,undefined)
    endif()
    if(CEIECHART_FUZZ)
        # Without the tracing of comparisons, which takes 40 % of the time: the dictionaries know the words.
        target_compile_options(ceiechart_build_flags INTERFACE
            -fsanitize=fuzzer-no-link -fno-sanitize-coverage=trace-cmp)
    endif()
elseif(MSVC)
    # Results must not depend on the optimiser: since Visual Studio 2022, /fp:precise does not fuse multiply and add. The
    # warnings left out are about private members of exported classes whose types are not exported; a host and the
    # libraries are built with the same compiler.
    target_compile_options(ceiechart_build_flags INTERFACE /W4 /permissive- /Zc:__cplusplus /fp:precise /utf-8
        /wd4251 /wd4275)
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        target_compile_options(ceiechart_build_flags INTERFACE /clang:-ffp-contract=off)
    endif()
    if(CEIECHART_WERROR)
        target_compile_options(ceiechart_build_flags INTERFACE /WX)
    endif()
endif()

if(CEIECHART_FAST_BUILD)
    include(CheckLinkerFlag)
    check_linker_flag(CXX -fuse-ld=lld CEIECHART_HAS_LLD)
    if(CEIECHART_HAS_LLD)
        target_link_options(ceiechart_build_flags INTERFACE -fuse-ld=lld)
    endif()
endif()

# ceiechart_precompile(<target> <header>...): compiles the headers once for all sources of the target, where
# CEIECHART_FAST_BUILD asks for it.
function(ceiechart_precompile target)
    if(NOT CEIECHART_FAST_BUILD)
        return()
    endif()
    target_precompile_headers(${target} PRIVATE ${ARGN})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # GCC no longer knows that templates of the standard library are not ours, and warns of what cannot happen.
        target_compile_options(${target} PRIVATE -Wno-stringop-overflow)
    endif()
endfunction()

# ceiechart_compile_together(<target>): compiles several files of the target at a time, where CEIECHART_FAST_BUILD asks for
# it. Most of the time goes to headers, which are read once for all of them then. Names in unnamed namespaces of the target
# have to differ for it.
function(ceiechart_compile_together target)
    if(CEIECHART_FAST_BUILD)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12)
    endif()
endfunction()

# ceiechart_install(<arguments of install()>): installs, unless another project contains this one and has not asked for
# it.
function(ceiechart_install)
    if(CEIECHART_INSTALL)
        install(${ARGV})
    endif()
endfunction()

# ceiechart_export_header(<target> <folder>): generates <folder>/<target>_export.h with the export macro and installs it
# with the other headers of the target.
function(ceiechart_export_header target folder)
    set(header ${PROJECT_BINARY_DIR}/include/${folder}/${target}_export.h)
    generate_export_header(${target} BASE_NAME ${target} EXPORT_FILE_NAME ${header})
    ceiechart_install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder} COMPONENT dev)
endfunction()

# ceiechart_library(<target>): sets the version, the exported symbols and the installation of a library.
function(ceiechart_library target)
    add_library(CeieChart::${target} ALIAS ${target})
    set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    get_target_property(type ${target} TYPE)
    if(type STREQUAL SHARED_LIBRARY AND UNIX AND NOT APPLE)
        set(map ${PROJECT_SOURCE_DIR}/cmake/hidden-symbols.map)
        target_link_options(${target} PRIVATE LINKER:--version-script=${map})
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${map})
    endif()
    ceiechart_install(TARGETS ${target} EXPORT CeieChart_${target}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    ceiechart_install(EXPORT CeieChart_${target} NAMESPACE CeieChart:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/CeieChart
        COMPONENT dev)
endfunction()
