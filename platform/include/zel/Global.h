// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_GLOBAL_H
#define ZEL_GLOBAL_H

/** Exports a symbol of a platform library, or imports it; on the supported systems, one attribute does both. */
#define ZEL_EXPORT __attribute__((visibility("default")))

#endif
