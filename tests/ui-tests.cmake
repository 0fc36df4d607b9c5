# SPDX-FileCopyrightText: 2026 QuorvaMedia
# SPDX-License-Identifier: Apache-2.0

quorva_add_test(tst_QVImageView)
quorva_add_test(tst_QVTheme)
quorva_add_test(tst_QVLanguage)
quorva_add_test(tst_QVKeyboard ${PROJECT_SOURCE_DIR}/demo/KeyboardPanel.cpp)
target_include_directories(tst_QVKeyboard PRIVATE ${PROJECT_SOURCE_DIR}/demo)
find_package(Qt6 REQUIRED COMPONENTS QuickTest)
target_link_libraries(tst_QVKeyboard PRIVATE Qt6::QuickTest)
quorva_add_test(tst_QVOffersViewController)
target_compile_definitions(tst_QVOffersViewController PRIVATE QUORVA_HOST_LIFE_PROBE="$<TARGET_FILE:host_life_probe>")
add_dependencies(tst_QVOffersViewController host_life_probe quorva-sandbox)
quorva_add_test(tst_QVOfferWallPreload)
quorva_add_test(tst_QVFiltersViewController)
quorva_add_test(tst_QVSupportViewController)
quorva_add_test(tst_QVEmailViewController)

# The suites that put a wall in a window; scripts/stress runs these.
set_tests_properties(tst_QVImageView tst_QVLanguage tst_QVKeyboard tst_QVOffersViewController
    tst_QVOfferWallPreload tst_QVFiltersViewController tst_QVSupportViewController
    tst_QVEmailViewController PROPERTIES LABELS ui)
