// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TESTS_FAKECLOCK_H
#define ZEL_TESTS_FAKECLOCK_H

#include <QtCore/QDateTime>

/** The system clock of this process. The program replaces the C library's functions. */
namespace FakeClock {

void set(const QDateTime& now);

/** Simulates the kernel's notification that the clock was set or the machine woke up. */
void announce();

} // namespace FakeClock

#endif
