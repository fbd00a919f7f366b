// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICU_DATADIRECTORY_H
#define ZEL_ICU_DATADIRECTORY_H

#include <zel/Global.h>

/**
 * The directory in which ICU finds the phrases of relative dates.
 *
 * When libzelicudata is loaded, it points ICU to the directory with the phrase tables: share/zel/icu next to its own
 * lib directory. It does not change ICU's directory if ICU_DATA (ignored in a process with raised privileges) or the
 * application has already set one. Nor does it, with a line on standard error, if the phrase tables are missing, belong
 * to another ICU, or are damaged: ICU would trust them. An application with other data calls u_setDataDirectory() in
 * main(), before its first use of ICU.
 *
 * All functions are thread-safe.
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

/** Returns the absolute path of the directory with phrase tables next to this library; "" if it is unusable. */
ZEL_EXPORT const char* dataDirectory() noexcept;

/** Returns the reason why dataDirectory() is ""; otherwise "". */
ZEL_EXPORT const char* dataDirectoryProblem() noexcept;

/**
 * Checks every bundle in the directory that ICU uses, once per process. If one is missing or damaged, writes a line on
 * standard error and switches ICU back to its own data. The functions below and libzelutilityi18n call this before they
 * ask ICU for a locale's data.
 */
ZEL_EXPORT void checkDataDirectory() noexcept;

/** Returns whether ICU uses dataDirectory(): false if it uses another directory, or if there is none. */
ZEL_EXPORT bool isDataDirectoryInUse() noexcept;

/** Returns whether the data that ICU opens by default has phrase tables, in any directory. */
ZEL_EXPORT bool hasPhraseTables() noexcept;

/**
 * Returns the ICU package from which to open bundles with phrase tables; null for ICU's default data. It is null unless
 * ICU had already opened its own root bundle when this library was loaded: ICU keeps that one open, and the package
 * bypasses it. If the package is needed but not in the directory, it is null, with a line on standard error at the
 * first call.
 */
ZEL_EXPORT const char* phrasePackage() noexcept;

} // namespace zel::icudata

#endif
