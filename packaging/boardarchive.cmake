# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT

# Run by CPack on the staged files: lays them out as install.sh takes them, lists them with sizes and
# sums, and packs them without their times and owners. It fails if the libraries have outgrown the
# board.

set(libraries_limit 1048576)
set(staged "${CPACK_TEMPORARY_DIRECTORY}/${CPACK_COMPONENTS_ALL}")
set(archive "${CPACK_PACKAGE_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.tar.xz")

foreach(folder IN ITEMS app translations)
    file(RENAME "${staged}/share/multi-pulse-builder/${folder}" "${staged}/${folder}")
endforeach()
file(GLOB_RECURSE left LIST_DIRECTORIES false RELATIVE "${staged}" "${staged}/share/*")
if(left)
    message(FATAL_ERROR "no place is laid down in the archive for ${left}")
endif()
file(REMOVE_RECURSE "${staged}/share")

file(GLOB_RECURSE names LIST_DIRECTORIES false RELATIVE "${staged}" "${staged}/*")
list(SORT names)
set(list "")
set(sums "")
set(libraries_size 0)
set(libraries_found 0)
foreach(name IN LISTS names)
    file(SIZE "${staged}/${name}" size)
    file(SHA256 "${staged}/${name}" sum)
    string(APPEND list "${size} ${name}\n")
    string(APPEND sums "${sum}  ${name}\n")
    if(name MATCHES "^lib/lib(appPlugins|MultiPulseBuilder)\\.so$")
        math(EXPR libraries_size "${libraries_size} + ${size}")
        math(EXPR libraries_found "${libraries_found} + 1")
    endif()
endforeach()
if(NOT libraries_found EQUAL 2)
    message(FATAL_ERROR "the archive wants libMultiPulseBuilder.so and libappPlugins.so: ${names}")
endif()
if(libraries_size GREATER libraries_limit)
    message(FATAL_ERROR
        "the libraries have ${libraries_size} bytes, more than ${libraries_limit}")
endif()
file(WRITE "${staged}/FILES" "${list}")
file(SHA256 "${staged}/FILES" sum)
file(WRITE "${staged}/SHA256SUMS" "${sums}${sum}  FILES\n")
file(WRITE "${CPACK_PACKAGE_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.files" "${list}")

# One thread: how xz divides a file among several shows in the bytes.
execute_process(
    COMMAND tar --create --format=gnu --sort=name --mtime=@0 --owner=0 --group=0 --numeric-owner
        --mode=u=rwX,go=rX "--transform=s,^\\.,${CPACK_PACKAGE_FILE_NAME}," -C "${staged}" .
    COMMAND xz --threads=1 -9 --stdout
    OUTPUT_FILE "${archive}"
    COMMAND_ERROR_IS_FATAL ANY)
message(STATUS "the libraries have ${libraries_size} of ${libraries_limit} bytes")
