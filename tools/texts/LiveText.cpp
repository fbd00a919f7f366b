// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "texts/LiveText.h"

#include "terminal/Console.h"
#include "terminal/Failure.h"
#include <zel/utility/i18n/CustomDateFormatter.h>

namespace zel::tool {

using zel::utility::i18n::CustomDateFormatter;

LiveText::LiveText(const QString& skeleton, const std::optional<QDateTime>& moment, Console& console, bool json)
    : m_console(console),
      m_answers(console, json),
      m_moment(moment),
      m_skeleton(skeleton),
      m_library(zel::utility::i18n::RelativeDateFormat::TimeCritical),
      m_interrupted(console.signalDescriptor(), QSocketNotifier::Read)
{
    if (!CustomDateFormatter(skeleton).isValid()) {
        throw Failure(QStringLiteral("no pattern for the skeleton ") + quoted(skeleton));
    }
    requireConnection(m_library.connectToSettings(this, SLOT(write())));
    requireConnection(connect(&m_interrupted, SIGNAL(activated(int)), &m_loop, SLOT(quit())));
}

void LiveText::run()
{
    QTimer::singleShot(0, this, SLOT(write()));
    m_loop.exec();
    // A signal is the normal end and not reported.
    m_console.takeSignal();
    if (m_failure) {
        std::rethrow_exception(m_failure);
    }
}

void LiveText::write()
try {
    const QDateTime moment = m_moment.value_or(QDateTime::currentDateTime());
    m_answers.write(moment, CustomDateFormatter(m_skeleton).format(moment));
    m_console.flush();
} catch (...) {
    // An exception cannot leave the event loop.
    m_failure = std::current_exception();
    m_loop.quit();
}

} // namespace zel::tool
