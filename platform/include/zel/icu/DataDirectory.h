#ifndef ZEL_ICU_DATADIRECTORY_H
#define ZEL_ICU_DATADIRECTORY_H

/**
 * Where ICU finds the relative-date phrases.
 *
 * The library behind this header, libzelicudata, points ICU to the directory with the phrase tables when it is loaded:
 * to share/zel/icu beside its own lib directory. It leaves ICU alone when ICU_DATA or the application has named a
 * directory by then; in a process with raised privileges ICU_DATA names none. It also leaves ICU alone where that
 * directory has no data for the ICU in use, or damaged data, which ICU would trust, and says so on the standard error
 * stream. An application that wants data of its own calls u_setDataDirectory() in main(), before its first use of ICU.
 *
 * The functions may be called from any thread.
 */
namespace zel::icudata {

/** The directory with phrase tables beside this library, absolute, or "" where there is none that can be used. */
__attribute__((visibility("default"))) const char* dataDirectory() noexcept;

/** Why dataDirectory() is ""; otherwise "". */
__attribute__((visibility("default"))) const char* dataDirectoryProblem() noexcept;

/**
 * Looks at every bundle in the directory that ICU uses, once in a process, and leaves ICU with its own data where one
 * is missing or damaged. The other functions, and all of the product, do so before they ask ICU for a locale's data.
 */
__attribute__((visibility("default"))) void checkDataDirectory() noexcept;

/** Whether ICU looks into dataDirectory(). False where somebody else named a directory, and where there is none. */
__attribute__((visibility("default"))) bool isDataDirectoryInUse() noexcept;

/** Whether the data that ICU opens by default has phrase tables, wherever it comes from. */
__attribute__((visibility("default"))) bool hasPhraseTables() noexcept;

/**
 * The package from which to open bundles with phrase tables, as ICU's functions take it. Null stands for ICU's default
 * data: these have the tables, or others than ours are in use. Otherwise ICU had opened its own root bundle before this
 * library was loaded, and keeps it; the package is a way round that.
 */
__attribute__((visibility("default"))) const char* phrasePackage() noexcept;

} // namespace zel::icudata

#endif
