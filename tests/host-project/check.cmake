# SPDX-FileCopyrightText: 2026 QuorvaMedia
# SPDX-License-Identifier: Apache-2.0

# Installs the library into a scratch prefix, then configures, builds and runs a host
# project that finds it with find_package, builds the examples against it, and lints the
# examples' QML and every documented wall property against the installed QML module.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix} --component Unspecified
                RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "install failed")
endif()
foreach(internal RequestPipeline.h ReplyParsers.h QVImageView.h QVImageCache.h QVColor.h QVOffersViewControllerPrivate.h)
    if(EXISTS ${prefix}/include/QuorvaMedia/${internal})
        message(FATAL_ERROR "the library's own ${internal} was installed")
    endif()
endforeach()
# Every C++ snippet of the README, in order in one function (later snippets use what
# earlier ones declared), compiled by the host project; every QML snippet linted.
file(READ ${SOURCE_DIR}/README.md readme)
set(snippets "#include <QuorvaMedia/QuorvaMedia.h>\n#include <QtCore/QPointer>\n#include <QtGui/QGuiApplication>\n#include <QtQuick/QQuickWindow>\n\n")
string(APPEND snippets "[[maybe_unused]] int readmeSnippets(QGuiApplication &app, const QString &userId)\n{\n")
set(qml_snippets "")
set(index 0)
while(TRUE)
    string(FIND "${readme}" "```" open)
    if(open EQUAL -1)
        break()
    endif()
    string(SUBSTRING "${readme}" ${open} -1 readme)
    string(FIND "${readme}" "\n" line_end)
    math(EXPR language_length "${line_end} - 3")
    string(SUBSTRING "${readme}" 3 ${language_length} language)
    string(STRIP "${language}" language)
    math(EXPR body_start "${line_end} + 1")
    string(SUBSTRING "${readme}" ${body_start} -1 readme)
    string(FIND "${readme}" "```" close)
    string(SUBSTRING "${readme}" 0 ${close} body)
    math(EXPR after "${close} + 3")
    string(SUBSTRING "${readme}" ${after} -1 readme)
    if(language STREQUAL "cpp")
        string(APPEND snippets "${body}\n")
    elseif(language STREQUAL "qml")
        math(EXPR index "${index} + 1")
        file(WRITE ${WORK_DIR}/readme-${index}.qml "${body}")
        list(APPEND qml_snippets ${WORK_DIR}/readme-${index}.qml)
    endif()
endwhile()
string(APPEND snippets "return 0;\n}\n")
file(WRITE ${WORK_DIR}/readme_snippets.cpp "${snippets}")

set(flags "")
if(SANITIZE)
    set(flags "-fsanitize=address,undefined")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/host-project -B ${WORK_DIR}/build
                        -DCMAKE_PREFIX_PATH=${prefix} -DREADME_SNIPPETS=${WORK_DIR}/readme_snippets.cpp "-DCMAKE_CXX_FLAGS=${flags}" "-DCMAKE_EXE_LINKER_FLAGS=${flags}"
                RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "host project did not configure against the installed package")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/build RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "host project or the README's snippets did not build")
endif()
execute_process(COMMAND ${WORK_DIR}/build/quorva-host RESULT_VARIABLE rc OUTPUT_VARIABLE out)
message(STATUS "host printed: ${out}")
if(NOT rc EQUAL 0 OR NOT out MATCHES "PROJECT:QuorvaMedia-1.1.0" OR NOT out MATCHES "release 2.2.0")
    message(FATAL_ERROR "host project did not run against the installed library")
endif()

set(examples minimal-cpp minimal-qml full-qml)
foreach(qml ${SOURCE_DIR}/examples/minimal-qml/Main.qml ${SOURCE_DIR}/examples/full-qml/Main.qml
            ${SOURCE_DIR}/tests/host-project/EveryWallProperty.qml ${qml_snippets})
    execute_process(COMMAND ${QMLLINT} -I ${prefix}/lib/qml ${qml} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE out)
    if(NOT rc EQUAL 0 OR NOT out STREQUAL "")
        message(FATAL_ERROR "qmllint of ${qml} against the installed module:\n${out}")
    endif()
endforeach()
# What qmllint cannot tell: a member of a handler's parameter or of one of the module's
# singletons that the installed module does not declare, in the examples, the README and
# the QML reference.
find_program(PYTHON3 python3 REQUIRED)
execute_process(COMMAND ${PYTHON3} ${SOURCE_DIR}/tests/host-project/check-qml-members.py
                        ${prefix}/lib/qml/QuorvaMedia/QuorvaMedia.qmltypes ${SOURCE_DIR}/examples/minimal-qml/Main.qml
                        ${SOURCE_DIR}/examples/full-qml/Main.qml ${SOURCE_DIR}/tests/host-project/EveryWallProperty.qml
                        ${SOURCE_DIR}/README.md ${SOURCE_DIR}/docs/qml-types.md ${qml_snippets}
                RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE out)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "QML that names what the installed module does not have:\n${out}")
endif()
# Qt's deployment tools (androiddeployqt, macdeployqt) find what to ship through the import
# scanner: from a QML-only host it must reach every module the wall's own files import.
execute_process(COMMAND ${QMLIMPORTSCANNER} -rootPath ${SOURCE_DIR}/examples/minimal-qml
                        -importPath ${prefix}/lib/qml -importPath ${QT_QML_DIR}
                RESULT_VARIABLE rc OUTPUT_VARIABLE imports ERROR_QUIET)
foreach(module QuorvaMedia QtQuick QtQuick.Controls.Basic QtQuick.Controls.impl Qt5Compat.GraphicalEffects Qt.labs.qmlmodels)
    if(NOT rc EQUAL 0 OR NOT imports MATCHES "\"name\": \"${module}\"")
        message(FATAL_ERROR "qmlimportscanner on examples/minimal-qml does not list ${module}:\n${imports}")
    endif()
endforeach()
# Each example is built against the installed package and run against a sandbox until its
# first offers are on screen (in the sanitizer build the installed library needs the
# sanitizers' runtime first, so its examples are only linted).
if(NOT SANITIZE)
    set(programs "")
    foreach(example ${examples})
        execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples/${example} -B ${WORK_DIR}/${example}
                                -DCMAKE_PREFIX_PATH=${prefix} OUTPUT_QUIET RESULT_VARIABLE rc)
        if(rc EQUAL 0)
            execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/${example} OUTPUT_QUIET RESULT_VARIABLE rc)
        endif()
        if(NOT rc EQUAL 0)
            message(FATAL_ERROR "the ${example} example did not build against the installed package")
        endif()
        list(APPEND programs ${WORK_DIR}/${example}/quorva-${example})
    endforeach()
    execute_process(COMMAND ${SOURCE_DIR}/tests/host-project/run-examples ${BUILD_DIR}/sandbox/quorva-sandbox
                            ${WORK_DIR} ${programs} RESULT_VARIABLE rc)
    if(NOT rc EQUAL 0)
        message(FATAL_ERROR "an example did not show its first offers")
    endif()
endif()
