// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_RELATIVE_RELATIVEDATEELEMENT_H
#define ZEL_UTILITY_I18N_RELATIVE_RELATIVEDATEELEMENT_H

namespace zel::utility::i18n {

/** The units in which relative dates count. */
namespace RelativeDateElement {

/** One bit per unit; any other value is invalid. */
enum Type : int { Minutes = 0x10, Hours = 0x20, NamedDays = 0x80, Years = 0x800 };

} // namespace RelativeDateElement
} // namespace zel::utility::i18n

#endif
