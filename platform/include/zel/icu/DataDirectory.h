// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICU_DATADIRECTORY_H
#define ZEL_ICU_DATADIRECTORY_H

#include <zel/Global.h>

/**
 * The directory in which ICU finds the phrases of relative dates.
 *
 * When libzelicudata is loaded, it points ICU to the directory with the phrase tables: share/zel/icu beside its own lib
 * directory. It leaves ICU as it is where ICU_DATA (ignored in a process with raised privileges) or the application has
 * named a directory by then. It also does so, with a line on standard error, where the directory has no data for the
 * ICU in use or has damaged data, which ICU would trust. An application with other data calls u_setDataDirectory() in
 * main(), before its first use of ICU.
 *
 * Call every function on any thread. None fails other than by its return value.
 *
 * @code
 * #include <cstdio>
 * #include <zel/icu/DataDirectory.h>
 *
 * if (!zel::icudata::hasPhraseTables()) {
 *     std::puts(zel::icudata::dataDirectoryProblem());
 * }
 * @endcode
 */
namespace zel::icudata {

/** Returns the absolute path of the directory with phrase tables beside this library; "" if none can be used. */
ZEL_EXPORT const char* dataDirectory() noexcept;

/** Returns the reason why dataDirectory() is ""; otherwise "". */
ZEL_EXPORT const char* dataDirectoryProblem() noexcept;

/**
 * Checks every bundle in the directory that ICU uses, once in a process. If one is missing or damaged, ICU is taken
 * back to its own data. The other functions, and the whole library, call this before they ask ICU for a locale's data.
 */
ZEL_EXPORT void checkDataDirectory() noexcept;

/** Returns whether ICU uses dataDirectory(): false if it uses another directory, or if there is none. */
ZEL_EXPORT bool isDataDirectoryInUse() noexcept;

/** Returns whether the data that ICU opens by default has phrase tables, from whichever directory. */
ZEL_EXPORT bool hasPhraseTables() noexcept;

/**
 * Returns the ICU package from which to open bundles with phrase tables; null for ICU's default data. It is null unless
 * ICU had opened its own root bundle before this library was loaded: ICU keeps that one, and the package is a way round
 * it.
 */
ZEL_EXPORT const char* phrasePackage() noexcept;

} // namespace zel::icudata

#endif
