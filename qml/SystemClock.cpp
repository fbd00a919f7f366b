// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "SystemClock.h"

#include <algorithm>
#include <ctime>
#include <limits>
#include <QtCore/QSocketNotifier>
#include <sys/timerfd.h>
#include <unistd.h>

namespace zel::utility::i18n::qml {

namespace {

// In practice, only a clock that is set makes the timer readable.
constexpr auto distantFuture =
    static_cast<std::time_t>(std::min<qint64>(32503680000, std::numeric_limits<std::time_t>::max())); // year 3000

} // namespace

SystemClock::SystemClock(QObject* parent)
    : QObject(parent),
      m_timer(::timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC))
{
    if (!watch()) {
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_timer, QSocketNotifier::Read);
    if (!connect(m_notifier.get(), SIGNAL(activated(QSocketDescriptor, QSocketNotifier::Type)), this,
                 SLOT(onReadable()))) {
        m_notifier.reset();
    }
}

SystemClock::~SystemClock()
{
    m_notifier.reset();
    if (m_timer != -1) {
        ::close(m_timer);
    }
}

bool SystemClock::watch() const
{
    itimerspec time = {};
    time.it_value.tv_sec = distantFuture;
    return m_timer != -1 &&
           ::timerfd_settime(m_timer, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &time, nullptr) == 0;
}

void SystemClock::onReadable()
{
    std::uint64_t expirations = 0;
    [[maybe_unused]] const ssize_t size = ::read(m_timer, &expirations, sizeof(expirations)); // fails with ECANCELED
    if (!watch()) {
        m_notifier->setEnabled(false);
        m_notifier.release()->deleteLater(); // it is the sender
    }
    Q_EMIT changed();
}

} // namespace zel::utility::i18n::qml
