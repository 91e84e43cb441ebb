# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# daskel_add_theme(<target> <library> <folder>)
# builds the theme of a library into it, as :/daskel/themes/<library>, and installs it where another
# theme of the person's or of the system may take its place.
function(daskel_add_theme target library folder)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${folder} ${folder}/*.json ${folder}/*.svg)
    set(entries)
    foreach(file IN LISTS files)
        string(APPEND entries "    <file alias=\"${file}\">${folder}/${file}</file>\n")
    endforeach()
    set(list ${CMAKE_CURRENT_BINARY_DIR}/theme_${library}.qrc)
    file(CONFIGURE OUTPUT ${list} CONTENT
        "<RCC>\n  <qresource prefix=\"/daskel/themes/${library}\">\n@entries@  </qresource>\n</RCC>\n")
    target_sources(${target} PRIVATE ${list})
    install(DIRECTORY ${folder}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/daskel/themes/${library})
endfunction()
