# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# The catalogues lie as they would below the prefix of an installation.
set(catalogue_dir ${CMAKE_CURRENT_BINARY_DIR}/share/touchcore-tests/translations)
file(MAKE_DIRECTORY ${catalogue_dir})
foreach(name greeting_de greeting_en override_en)
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/fixtures/locale/${name}.ts)
    add_custom_command(OUTPUT ${catalogue_dir}/${name}.qm
        COMMAND Qt5::lrelease -silent -idbased ${source} -qm ${catalogue_dir}/${name}.qm
        DEPENDS ${source}
        VERBATIM)
    list(APPEND test_catalogues ${catalogue_dir}/${name}.qm)
endforeach()
add_custom_target(touchcore_test_catalogues DEPENDS ${test_catalogues})

foreach(test tst_mcalendar tst_mcatalogues tst_mdesktopclock tst_mlocale tst_mlocaleformats
        tst_mposixpattern)
    daskel_add_test(${test} LINK tarvotouchcore)
endforeach()
add_dependencies(tst_mcatalogues touchcore_test_catalogues)
target_sources(tst_mdesktopclock PRIVATE fakeportal.h)
target_link_libraries(tst_mdesktopclock PRIVATE Qt5::DBus)
# It starts a message bus of its own.
target_include_directories(tst_mdesktopclock PRIVATE ${PROJECT_SOURCE_DIR}/platform/systemtime/tests)
