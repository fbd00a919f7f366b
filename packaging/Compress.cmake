# SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
# SPDX-License-Identifier: Apache-2.0

# Run before packages are made: compresses manuals and changelogs as Debian wants them.
file(GLOB_RECURSE texts "${CPACK_TEMPORARY_DIRECTORY}/zel-i18n.1" "${CPACK_TEMPORARY_DIRECTORY}/changelog")
foreach(text IN LISTS texts)
    execute_process(COMMAND gzip -9n "${text}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
