#ifndef ZEL_GLOBAL_H
#define ZEL_GLOBAL_H

#include <QtCore/QtGlobal>

/** Marks what the platform libraries export; the same when building and when using them. */
#define ZEL_EXPORT Q_DECL_EXPORT

#endif
