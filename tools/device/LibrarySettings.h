// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_LIBRARYSETTINGS_H
#define ZEL_TOOL_LIBRARYSETTINGS_H

namespace zel::tool {

/** The clock that the library takes the device to have: 12 or 24. */
int libraryClock();

/**
 * Has the library read the clock of the device, and drops what it says. To be called when the setting can be read: it
 * says no more then than that nobody has made it, which is nothing to worry about, as defaults apply.
 */
void readClock();

/** The same for the clock and the time zone. What the library says of the region is shown. */
void readSettings();

} // namespace zel::tool

#endif
