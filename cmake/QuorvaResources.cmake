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
