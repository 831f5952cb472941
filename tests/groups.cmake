# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
# Fast builds compile several tests at a time: most of the time goes into headers and templates, which they share. Each
# test remains a program of its own.

set(ceiechart_tests_per_group 8)

# ceiechart_group_test(<result> <name> <headers> <options> <libraries>)
#   sets <result> to YES and writes <name>main.cpp, the source that remains of the test, if <name>.cpp can be compiled
#   together with others of its folder that have the same precompiled headers, options and libraries.
function(ceiechart_group_test result name headers options libraries)
    # In a group each test has a namespace. What has to stand outside of it is compiled by itself.
    file(STRINGS ${name}.cpp outside REGEX "^ *(Q_DECLARE_METATYPE|namespace [a-zA-Z]|template *<>|#define main|extern \"C\")")
    if(outside)
        return()
    endif()
    file(CONFIGURE OUTPUT ${name}main.cpp CONTENT "namespace of_${name} {
int run(int argc, char **argv);
}

int main(int argc, char **argv)
{
    return of_${name}::run(argc, argv);
}
")
    string(MAKE_C_IDENTIFIER "${headers} ${options} ${libraries}" kind)
    get_property(kinds DIRECTORY PROPERTY ceiechart_kinds)
    if(NOT kinds)
        cmake_language(DEFER CALL ceiechart_compile_groups)
    endif()
    if(NOT kind IN_LIST kinds)
        set_property(DIRECTORY APPEND PROPERTY ceiechart_kinds ${kind})
        foreach(what headers options libraries)
            set_property(DIRECTORY PROPERTY ceiechart_${what}_of_${kind} "${${what}}")
        endforeach()
    endif()
    set_property(DIRECTORY APPEND PROPERTY ceiechart_tests_of_${kind} ${name})
    set(${result} YES PARENT_SCOPE)
endfunction()

# Called at the end of a folder with tests.
function(ceiechart_compile_groups)
    get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
    get_property(kinds DIRECTORY PROPERTY ceiechart_kinds)
    set(number 0)
    foreach(kind IN LISTS kinds)
        foreach(what headers options libraries tests)
            get_property(${what} DIRECTORY PROPERTY ceiechart_${what}_of_${kind})
        endforeach()
        while(tests)
            math(EXPR number "${number} + 1")
            list(SUBLIST tests 0 ${ceiechart_tests_per_group} members)
            list(REMOVE_ITEM tests ${members})
            ceiechart_compile_group(tests_${folder}_${number} "${members}" "${headers}" "${options}" "${libraries}")
        endwhile()
    endforeach()
endfunction()

function(ceiechart_compile_group group tests headers options libraries)
    # The headers come first. Included again inside a namespace, they then add nothing to it. The first two are included by
    # what moc writes.
    set(includes "")
    foreach(header qtmochelpers.h qxptype_traits.h)
        list(APPEND includes "#if __has_include(<QtCore/${header}>)\n#include <QtCore/${header}>\n#endif")
    endforeach()
    set(bodies "")
    set(mocs "")
    set(definitions "")
    foreach(test IN LISTS tests)
        file(STRINGS ${test}.cpp lines REGEX "^ *# *include")
        set(odd ${lines})
        list(FILTER odd EXCLUDE REGEX "^#include [<\"][^<>\"]+[>\"]$")
        if(odd)
            message(FATAL_ERROR "${test}.cpp: not as a line of its own: ${odd}")
        endif()
        list(FILTER lines EXCLUDE REGEX "[.]moc\"$")
        list(APPEND includes ${lines})
        string(APPEND bodies "namespace of_${test} {\n#include \"${test}.cpp\"\n}\n")
        list(APPEND mocs ${CMAKE_CURRENT_BINARY_DIR}/${test}.moc)
        list(APPEND definitions $<TARGET_PROPERTY:${test},COMPILE_DEFINITIONS>)
        target_link_libraries(${test} PRIVATE ${group})
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${test}.cpp) # for what it includes
    endforeach()
    list(REMOVE_DUPLICATES includes)
    list(JOIN includes "\n" includes)
    file(CONFIGURE OUTPUT ${group}.cpp CONTENT "${includes}\n\n#define main run\n\n${bodies}" @ONLY)
    add_library(${group} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${group}.cpp ${mocs})
    target_include_directories(${group} PRIVATE ${PROJECT_SOURCE_DIR}/tests ${CMAKE_CURRENT_SOURCE_DIR}
        ${CMAKE_CURRENT_BINARY_DIR})
    target_compile_definitions(${group} PRIVATE ${definitions})
    target_compile_options(${group} PRIVATE ${options})
    target_link_libraries(${group} PRIVATE ${libraries})
    target_precompile_headers(${group} REUSE_FROM ${headers})
endfunction()
