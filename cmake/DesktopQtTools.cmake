# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT

# Qt's tools that run while building: this machine's, where what is built is for another. Qt's own
# packages leave a tool alone that is defined before they are found.

foreach(tool IN ITEMS moc rcc uic lrelease)
    find_program(MPB_QT5_${tool} NAMES ${tool} PATHS /usr/lib/qt5/bin NO_DEFAULT_PATH REQUIRED)
    mark_as_advanced(MPB_QT5_${tool})
    add_executable(Qt5::${tool} IMPORTED)
    set_target_properties(Qt5::${tool} PROPERTIES IMPORTED_LOCATION "${MPB_QT5_${tool}}")
endforeach()
