// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_LIBRARYSETTINGS_H
#define ZEL_TOOL_LIBRARYSETTINGS_H

namespace zel::tool {

/** The clock of the device as the library sees it: 12 or 24. */
int libraryClock();

/**
 * Makes the library read the clock of the device, and drops its messages. Call after checking that the setting can be
 * read: the library then only reports that it is not set, and uses the default.
 */
void readClock();

/** The same for the clock and the time zone. Messages about the region are shown. */
void readSettings();

} // namespace zel::tool

#endif
