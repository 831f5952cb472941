# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
# ceiechart_translations(<name> TARGETS <target>... SOURCES <folder>... LANGUAGES <language>...
#                        [INTERFACE_TARGET <target>])
#   compiles <name>_<language>.ts of the current folder and builds the results into each <target> as the resource
#   :/<name>/translations. Targets that link the objects of INTERFACE_TARGET directly get it, too. The target
#   <name>_lupdate, which is built by hand after a text has changed, brings the .ts files up to date with the SOURCES; a
#   test checks that they are.
#   <name>_qm_files is set to the compiled files.
function(ceiechart_translations name)
    cmake_parse_arguments(arg "" "INTERFACE_TARGET" "TARGETS;SOURCES;LANGUAGES" ${ARGN})
    find_package(Qt${CEIECHART_QT_VERSION} ${CEIECHART_QT_MINIMUM} REQUIRED COMPONENTS LinguistTools)
    list(TRANSFORM arg_LANGUAGES REPLACE "(.+)" "${name}_\\1.ts" OUTPUT_VARIABLE ts_files)
    cmake_language(CALL qt${CEIECHART_QT_VERSION}_add_translation qm_files ${ts_files})

    set(qrc ${CMAKE_CURRENT_BINARY_DIR}/${name}_translations.qrc)
    list(TRANSFORM arg_LANGUAGES REPLACE "(.+)" "<file>${name}_\\1.qm</file>" OUTPUT_VARIABLE entries)
    list(JOIN entries "" entries)
    file(GENERATE OUTPUT ${qrc}
        CONTENT "<RCC><qresource prefix=\"/${name}/translations\">${entries}</qresource></RCC>\n")
    # The first version of the format has no time stamps: the same sources give the same library.
    set(resource ${CMAKE_CURRENT_BINARY_DIR}/qrc_${name}_translations.cpp)
    add_custom_command(OUTPUT ${resource}
        COMMAND Qt${CEIECHART_QT_VERSION}::rcc --format-version 1 --name ${name}_translations --output ${resource} ${qrc}
        DEPENDS ${qrc} ${qm_files} VERBATIM)

    add_library(${name}_translations OBJECT ${resource})
    target_link_libraries(${name}_translations PRIVATE Qt${CEIECHART_QT_VERSION}::Core)
    foreach(target ${arg_TARGETS})
        target_sources(${target} PRIVATE $<TARGET_OBJECTS:${name}_translations>)
    endforeach()
    if(arg_INTERFACE_TARGET)
        target_sources(${arg_INTERFACE_TARGET} INTERFACE $<TARGET_OBJECTS:${name}_translations>)
    endif()

    set(options -silent -locations none -no-obsolete -I ${PROJECT_SOURCE_DIR} -I ${PROJECT_SOURCE_DIR}/companions
        -I ${CMAKE_CURRENT_SOURCE_DIR}/..)
    list(TRANSFORM ts_files PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE ts_paths)
    add_custom_target(${name}_lupdate
        COMMAND Qt${CEIECHART_QT_VERSION}::lupdate ${options} ${arg_SOURCES} -ts ${ts_paths} VERBATIM)
    if(CEIECHART_BUILD_TESTS)
        add_test(NAME ${name}_translations COMMAND ${CMAKE_COMMAND} -D TARGET=${name}_lupdate
            -D "LUPDATE=$<TARGET_FILE:Qt${CEIECHART_QT_VERSION}::lupdate>;${options}" -D "SOURCES=${arg_SOURCES}"
            -D "TS_FILES=${ts_paths}" -D SCRATCH=${CMAKE_CURRENT_BINARY_DIR}
            -P ${PROJECT_SOURCE_DIR}/tests/translationsuptodate.cmake)
    endif()
    set(${name}_qm_files ${qm_files} PARENT_SCOPE)
endfunction()
