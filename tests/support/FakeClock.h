// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TESTS_FAKECLOCK_H
#define ZEL_TESTS_FAKECLOCK_H

#include <QtCore/QDateTime>

/** The clock of the system as this process sees it. The C library's functions are replaced in the program. */
namespace FakeClock {

void set(const QDateTime& now);

/** Has the kernel say that the clock was set or the machine woken up. */
void announce();

} // namespace FakeClock

#endif
