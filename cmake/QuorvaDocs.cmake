# SPDX-FileCopyrightText: 2026 QuorvaMedia
# SPDX-License-Identifier: Apache-2.0

# The "docs" target: the API reference from the installed headers, as HTML and as a Qt
# Help file, under <build>/docs.
find_package(Doxygen)
find_program(QUORVA_QHELPGENERATOR qhelpgenerator
    HINTS /usr/lib/qt6/libexec ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS})
if(NOT DOXYGEN_FOUND OR NOT QUORVA_QHELPGENERATOR)
    message(STATUS "docs: doxygen or qhelpgenerator missing, no docs target")
    return()
endif()

set(QUORVA_DOCS_DIR ${PROJECT_BINARY_DIR}/docs)
list(TRANSFORM QUORVA_PUBLIC_HEADERS PREPEND ${PROJECT_SOURCE_DIR}/src/ OUTPUT_VARIABLE quorva_docs_headers)
list(JOIN quorva_docs_headers " " QUORVA_DOCS_INPUT)
string(APPEND QUORVA_DOCS_INPUT " ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/docs/qml-types.md")
# A public name without a description, or a broken link, fails the build.
set(QUORVA_DOCS_WARN_AS_ERROR FAIL_ON_WARNINGS)
configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${QUORVA_DOCS_DIR}/Doxyfile @ONLY)
add_custom_target(docs
    COMMAND ${DOXYGEN_EXECUTABLE} ${QUORVA_DOCS_DIR}/Doxyfile
    WORKING_DIRECTORY ${QUORVA_DOCS_DIR}
    DEPENDS ${quorva_docs_headers} ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/docs/qml-types.md
            ${PROJECT_SOURCE_DIR}/docs/Doxyfile.in
    COMMENT "API reference in ${QUORVA_DOCS_DIR}/html and ${QUORVA_DOCS_DIR}/QuorvaMedia.qch"
    VERBATIM)

# Installed with the package, once built: <prefix>/share/doc/QuorvaMedia.
include(GNUInstallDirs)
install(DIRECTORY ${QUORVA_DOCS_DIR}/html/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/html OPTIONAL)
install(FILES ${QUORVA_DOCS_DIR}/QuorvaMedia.qch DESTINATION ${CMAKE_INSTALL_DOCDIR} OPTIONAL)
