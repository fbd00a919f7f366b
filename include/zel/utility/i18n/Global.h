#ifndef ZEL_UTILITY_I18N_GLOBAL_H
#define ZEL_UTILITY_I18N_GLOBAL_H

#include <QtCore/QtGlobal>

/**
 * @file
 * The macros that the public headers share.
 */

/** Marks what the library exports. */
#ifdef ZEL_UTILITY_I18N_BUILD
#define ZEL_UTILITY_I18N_EXPORT Q_DECL_EXPORT
#else
#define ZEL_UTILITY_I18N_EXPORT Q_DECL_IMPORT
#endif

/**
 * Marks what a later major version removes; the text names the replacement. Define
 * `ZEL_UTILITY_I18N_NO_DEPRECATED_WARNINGS` to silence the compiler about all of it.
 */
#ifdef ZEL_UTILITY_I18N_NO_DEPRECATED_WARNINGS
#define ZEL_UTILITY_I18N_DEPRECATED(replacement)
#else
#define ZEL_UTILITY_I18N_DEPRECATED(replacement) [[deprecated(replacement)]]
#endif

/**
 * Opens a section of signals, each marked with `Q_SIGNAL`. The meta-object lists them as protected, since only their
 * owner emits them; in C++ they are public, so that a type-safe `QObject::connect` can name them.
 */
#ifdef Q_MOC_RUN
#define ZEL_UTILITY_I18N_SIGNALS protected:
#else
#define ZEL_UTILITY_I18N_SIGNALS public:
#endif

#endif
