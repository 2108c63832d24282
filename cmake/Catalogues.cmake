# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT

# mpb_add_catalogues(TARGET PREFIX FOLDER): compiles the texts FOLDER/PREFIX_LANGUAGE.ts, keyed by
# identifier, to one catalogue per language. All catalogues lie together in the build tree, as they do
# when they are installed. Leaves their paths in MPB_CATALOGUES.
set(MPB_TRANSLATIONS_DIR "${PROJECT_BINARY_DIR}/content/translations")

function(mpb_add_catalogues target prefix folder)
    file(MAKE_DIRECTORY "${MPB_TRANSLATIONS_DIR}")
    set(catalogues "")
    foreach(language IN ITEMS en de zh_CN ja)
        set(source "${folder}/${prefix}_${language}.ts")
        set(catalogue "${MPB_TRANSLATIONS_DIR}/${prefix}_${language}.qm")
        add_custom_command(
            OUTPUT "${catalogue}"
            COMMAND Qt5::lrelease -silent -idbased -nounfinished "${source}" -qm "${catalogue}"
            DEPENDS "${source}"
            COMMENT "Compiling the texts ${prefix}_${language}"
            VERBATIM)
        list(APPEND catalogues "${catalogue}")
    endforeach()
    add_custom_target(${target} ALL DEPENDS ${catalogues})
    set(MPB_CATALOGUES ${catalogues} PARENT_SCOPE)
endfunction()
