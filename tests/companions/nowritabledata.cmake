# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
# Fails when one of OBJECTS holds data that can be written to: what must be usable from any thread keeps no state.
execute_process(COMMAND ${NM} -C ${OBJECTS} OUTPUT_VARIABLE symbols RESULT_VARIABLE result)
if(NOT result EQUAL 0 OR NOT symbols MATCHES " T ")
    message(FATAL_ERROR "cannot read the symbols: ${result}")
endif()
string(REGEX MATCHALL "[0-9a-f]+ [bBdDsSC] [^\n]+" written "${symbols}")
if(written)
    message(FATAL_ERROR "writable data: ${written}")
endif()
