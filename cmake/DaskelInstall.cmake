# SPDX-FileCopyrightText: 2026 The daskel authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# Puts libraries, public headers, the program, the CMake package and the pkg-config file where the
# system expects them. What lies below share/ is installed where it is made.

include(CMakePackageConfigHelpers)

set(DASKEL_PACKAGE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/daskel)

set(DASKEL_LIBRARIES libdaskel mkcal systemtime kcalcompat tarvotouchcore)
install(TARGETS ${DASKEL_LIBRARIES}
    EXPORT daskelTargets
    FILE_SET HEADERS DESTINATION ${DASKEL_INCLUDE_INSTALL_DIR})
install(TARGETS daskel)
install(EXPORT daskelTargets NAMESPACE daskel:: DESTINATION ${DASKEL_PACKAGE_DIR})

configure_package_config_file(
    ${CMAKE_CURRENT_LIST_DIR}/daskelConfig.cmake.in ${PROJECT_BINARY_DIR}/daskelConfig.cmake
    INSTALL_DESTINATION ${DASKEL_PACKAGE_DIR}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/daskelConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/daskelConfig.cmake ${PROJECT_BINARY_DIR}/daskelConfigVersion.cmake
    DESTINATION ${DASKEL_PACKAGE_DIR})

# The pkg-config file finds its prefix from where it lies, as the CMake package does.
file(RELATIVE_PATH DASKEL_PC_TO_PREFIX
    ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
cmake_path(GET DASKEL_PC_TO_PREFIX PARENT_PATH DASKEL_PC_TO_PREFIX)
set(DASKEL_PC_LIBS)
foreach(library IN LISTS DASKEL_LIBRARIES)
    get_target_property(output_name ${library} OUTPUT_NAME)
    string(APPEND DASKEL_PC_LIBS " -l${output_name}")
endforeach()
configure_file(${CMAKE_CURRENT_LIST_DIR}/daskel.pc.in ${PROJECT_BINARY_DIR}/daskel.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/daskel.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
