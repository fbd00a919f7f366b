// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "support/FakeClock.h"

#include <ctime>
#include <sys/eventfd.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <sys/timerfd.h>
#include <unistd.h>

namespace {

constexpr qint64 second = 1000000000; // in ns

qint64 offset = 0; // in ms
int announcer = -1;

} // namespace

// Replace the C library's functions for Qt, the C++ library and the module.
extern "C" {
int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    const long status = ::syscall(SYS_clock_gettime, clock, time);
    if (status == 0 && clock == CLOCK_REALTIME) {
        const qint64 nanoseconds = time->tv_nsec + offset % 1000 * 1000000;
        time->tv_sec += offset / 1000 + (nanoseconds < 0 ? -1 : nanoseconds / second);
        time->tv_nsec = (nanoseconds + second) % second;
    }
    return static_cast<int>(status);
}

int gettimeofday(timeval* time, void* /*zone*/) noexcept
{
    timespec now = {};
    const int status = clock_gettime(CLOCK_REALTIME, &now);
    *time = {now.tv_sec, now.tv_nsec / 1000};
    return status;
}

int timerfd_create(int /*clock*/, int /*flags*/) noexcept
{
    announcer = ::eventfd(0, EFD_NONBLOCK);
    return announcer;
}

int timerfd_settime(int /*fd*/, int /*flags*/, const itimerspec* /*time*/, itimerspec* /*old*/) noexcept
{
    return 0;
}
}

namespace FakeClock {

void set(const QDateTime& now)
{
    offset = 0;
    offset = now.toMSecsSinceEpoch() - QDateTime::currentMSecsSinceEpoch();
}

void announce()
{
    ::eventfd_write(announcer, 1);
}

} // namespace FakeClock
