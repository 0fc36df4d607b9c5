# Asks rcc to compress a QML module's interface files whenever that saves at least
# `threshold` percent. Qt writes the module's resource list when the module is
# declared, so this edits that list right after, before rcc ever reads it.
function(quorva_compress_qml_resources target threshold)
    file(GLOB lists "${CMAKE_CURRENT_BINARY_DIR}/.rcc/${target}_raw_qml_*.qrc")
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
