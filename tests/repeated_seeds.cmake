# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
#
# cmake -D FOLDER=DIR -P repeated_seeds.cmake: writes the fuzzer's repeated seeds into a new folder and
# checks that there is one of a megabyte for each character.

include(${CMAKE_CURRENT_LIST_DIR}/../fuzz/repeated.cmake)
file(REMOVE_RECURSE ${FOLDER})
write_repeated_seeds(${FOLDER})
list(LENGTH repeated_codes wanted)
if(wanted LESS 20)
    message(FATAL_ERROR "Only ${wanted} characters are repeated")
endif()
math(EXPR megabyte "1024 * 1024")
foreach(code ${repeated_codes})
    file(SIZE ${FOLDER}/${code}_${megabyte} size)
    if(NOT size EQUAL megabyte)
        message(FATAL_ERROR "The longest seed of the character ${code} has ${size} bytes")
    endif()
endforeach()
file(REMOVE_RECURSE ${FOLDER})
