# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
# ceiechart_source_date(<folder> <variable>): the time of the sources in <folder>, in seconds since 1970. What is packaged
# bears this time, so that the same sources give the same bytes whenever they are built: SOURCE_DATE_EPOCH of the
# environment if it is set, else the time of the last commit, else that of the changelog, as in an unpacked archive.
function(ceiechart_source_date folder variable)
    set(seconds "$ENV{SOURCE_DATE_EPOCH}")
    find_program(ceiechart_git git)
    mark_as_advanced(ceiechart_git)
    if(seconds STREQUAL "" AND ceiechart_git AND EXISTS ${folder}/.git)
        execute_process(COMMAND ${ceiechart_git} -C ${folder} log -1 --format=%ct OUTPUT_VARIABLE seconds
            OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    endif()
    if(NOT seconds MATCHES "^[0-9]+$")
        file(TIMESTAMP ${folder}/CHANGELOG.md seconds %s UTC)
    endif()
    set(${variable} ${seconds} PARENT_SCOPE)
endfunction()

# ceiechart_written_date(<seconds> <format> <variable>): such a time in words, in UTC and in the C locale.
function(ceiechart_written_date seconds format variable)
    set(before "$ENV{SOURCE_DATE_EPOCH}")
    set(ENV{SOURCE_DATE_EPOCH} ${seconds})
    string(TIMESTAMP text "${format}" UTC)
    if(before STREQUAL "")
        unset(ENV{SOURCE_DATE_EPOCH})
    else()
        set(ENV{SOURCE_DATE_EPOCH} ${before})
    endif()
    set(${variable} "${text}" PARENT_SCOPE)
endfunction()
