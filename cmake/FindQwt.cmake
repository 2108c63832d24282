# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT

# Finds the Qt 5 build of Qwt, which brings no package file of its own.
#
# Defines Qwt_FOUND, Qwt_VERSION and the imported target Qwt::Qwt, whose users get Qt Widgets too.
# Builds of Qwt for other Qt versions share its header folder's name but not its library's.

find_path(Qwt_INCLUDE_DIR qwt_global.h PATH_SUFFIXES qwt qwt-qt5 qt5/qwt)
find_library(Qwt_LIBRARY NAMES qwt-qt5)
mark_as_advanced(Qwt_INCLUDE_DIR Qwt_LIBRARY)

if(Qwt_INCLUDE_DIR)
    file(STRINGS "${Qwt_INCLUDE_DIR}/qwt_global.h" Qwt_VERSION
         REGEX "^#define[ \t]+QWT_VERSION_STR[ \t]")
    string(REGEX REPLACE ".*\"([^\"]*)\".*" "\\1" Qwt_VERSION "${Qwt_VERSION}")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(
    Qwt
    REQUIRED_VARS Qwt_LIBRARY Qwt_INCLUDE_DIR
    VERSION_VAR Qwt_VERSION
    REASON_FAILURE_MESSAGE "on Debian it is the package libqwt-qt5-dev")

if(Qwt_FOUND AND NOT TARGET Qwt::Qwt)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Widgets)
    add_library(Qwt::Qwt UNKNOWN IMPORTED)
    set_target_properties(Qwt::Qwt PROPERTIES
        IMPORTED_LOCATION "${Qwt_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${Qwt_INCLUDE_DIR}"
        INTERFACE_LINK_LIBRARIES "Qt5::Widgets")
endif()
