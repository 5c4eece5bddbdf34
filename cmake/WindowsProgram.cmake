# SPDX-FileCopyrightText: The Zeph authors
# SPDX-License-Identifier: MIT
#
# What Windows reads from a program's file: icon, version and manifest.

# zeph_windows_program(TARGET DESCRIPTION): adds them; does nothing for other systems.
function(zeph_windows_program program_name program_description)
    if(NOT WIN32)
        return()
    endif()
    set(folder ${CMAKE_SOURCE_DIR}/packaging/windows)
    set(program_manifest ${folder}/program.manifest)
    set(program_icon ${CMAKE_BINARY_DIR}/zeph.ico)
    set(drawing ${CMAKE_SOURCE_DIR}/data/icons/zeph.svg)
    if(NOT TARGET zeph_icon)
        add_custom_command(OUTPUT ${program_icon}
            COMMAND ${Python3_EXECUTABLE} ${folder}/make_icon.py ${drawing} ${program_icon}
            DEPENDS ${folder}/make_icon.py ${drawing} COMMENT "Making the icon" VERBATIM)
        add_custom_target(zeph_icon DEPENDS ${program_icon})
    endif()
    set(resource ${CMAKE_CURRENT_BINARY_DIR}/${program_name}.rc)
    configure_file(${folder}/program.rc.in ${resource} @ONLY)
    set_source_files_properties(${resource} PROPERTIES OBJECT_DEPENDS "${program_icon};${program_manifest}")
    target_sources(${program_name} PRIVATE ${resource})
    add_dependencies(${program_name} zeph_icon)
endfunction()
