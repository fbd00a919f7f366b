#ifndef ZEL_GLOBAL_H
#define ZEL_GLOBAL_H

#include <QtCore/QtGlobal>

/** Exports a symbol of the platform libraries; the same for building and using them. */
#define ZEL_EXPORT Q_DECL_EXPORT

#endif
