// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_GLOBAL_H
#define ZEL_GLOBAL_H

#include <QtCore/QtGlobal>

/** Exports a symbol of the platform libraries; the same for building and using them. */
#define ZEL_EXPORT Q_DECL_EXPORT

#endif
