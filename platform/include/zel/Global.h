// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_GLOBAL_H
#define ZEL_GLOBAL_H

/** Exports a symbol of the platform libraries, and imports it elsewhere: one attribute on the systems they run on. */
#define ZEL_EXPORT __attribute__((visibility("default")))

#endif
