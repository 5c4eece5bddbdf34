# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
#
# Seeds for all targets that read text: one character again and again, which finds what is slower than
# linear. They are too large for the repository.

set(repeated_codes 9 10 13 32 34 40 41 44 47 49 58 59 60 61 62 82 91 92 93 97 123 125 126)
# The fuzzer reads no more than the last of these.
set(repeated_sizes 1000 100000 1048576)

function(write_repeated_seeds folder)
    foreach(code ${repeated_codes})
        string(ASCII ${code} character)
        foreach(size ${repeated_sizes})
            string(REPEAT "${character}" ${size} text)
            file(WRITE ${folder}/${code}_${size} "${text}")
        endforeach()
    endforeach()
endfunction()
